#include <QDir>
#include <QFile>
#include <QLibrary>
#include <map>

#include "core/reglages_poste.h"
#include "workflows/lien_lecteur.h"

using namespace Qt::StringLiterals;

#ifdef Q_OS_WIN
#define APPEL __stdcall
#else
#define APPEL
#endif

namespace {

/// A folder in which the storage of the device is mounted.
class TLienDossier : public ILienLecteur {
 public:
  explicit TLienDossier(const QString& dossier) : dossier_(dossier) {}

  bool CeRapiInit() override { return dossier_.exists(); }
  void CeRapiUnInit() override { ouverts_.clear(); }
  TPoignee CeCreateFile(const QString& chemin) override {
    auto fichier = std::make_unique<QFile>(Local(chemin));
    if (!fichier->open(QIODevice::ReadOnly)) return 0;
    ouverts_[++derniere_] = std::move(fichier);
    return derniere_;
  }
  bool CeReadFile(TPoignee poignee, qint64 maximum, QByteArray& lu) override {
    QFile& fichier = *ouverts_.at(poignee);
    lu = fichier.read(maximum);
    return fichier.error() == QFileDevice::NoError;
  }
  void CeCloseHandle(TPoignee poignee) override { ouverts_.erase(poignee); }
  bool CeDeleteFile(const QString& chemin) override { return QFile::remove(Local(chemin)); }

 private:
  /// Of "\\StorageCard\\Presences\\Presences.txt" on the device.
  QString Local(const QString& chemin) const {
    return dossier_.filePath(QString(chemin).replace(u'\\', u'/').mid(1));
  }

  const QDir dossier_;
  std::map<TPoignee, std::unique_ptr<QFile>> ouverts_;
  TPoignee derniere_ = 0;
};

/// The library of the maker of the device, looked for when the link is opened. A machine without it has no
/// device.
class TLienRapi : public ILienLecteur {
 public:
  bool CeRapiInit() override {
    return Trouver(init_, "CeRapiInit") && Trouver(uninit_, "CeRapiUnInit") &&
           Trouver(creer_, "CeCreateFile") && Trouver(lire_, "CeReadFile") &&
           Trouver(fermer_, "CeCloseHandle") && Trouver(effacer_, "CeDeleteFile") && init_() == 0;
  }
  void CeRapiUnInit() override {
    if (uninit_ != nullptr) uninit_();
  }
  TPoignee CeCreateFile(const QString& chemin) override {
    static constexpr unsigned long lecture = 0x80000000, sansPartage = 0, existant = 3, normal = 0x80;
    void* const fichier =
        creer_(Large(chemin).c_str(), lecture, sansPartage, nullptr, existant, normal, nullptr);
    const auto poignee = reinterpret_cast<TPoignee>(fichier);
    return poignee == ~TPoignee{} ? 0 : poignee;
  }
  bool CeReadFile(TPoignee poignee, qint64 maximum, QByteArray& lu) override {
    lu.resize(maximum);
    unsigned long lus = 0;
    const int fait = lire_(reinterpret_cast<void*>(poignee), lu.data(), static_cast<unsigned long>(maximum),
                           &lus, nullptr);
    lu.truncate(static_cast<qsizetype>(lus));
    return fait != 0;
  }
  void CeCloseHandle(TPoignee poignee) override { fermer_(reinterpret_cast<void*>(poignee)); }
  bool CeDeleteFile(const QString& chemin) override { return effacer_(Large(chemin).c_str()) != 0; }

 private:
  static std::wstring Large(const QString& chemin) { return chemin.toStdWString(); }

  template <class Fonction>
  bool Trouver(Fonction& fonction, const char* nom) {
    fonction = reinterpret_cast<Fonction>(bibliotheque_.resolve(nom));
    return fonction != nullptr;
  }

  QLibrary bibliotheque_{u"rapi"_s};
  long(APPEL* init_)() = nullptr;
  long(APPEL* uninit_)() = nullptr;
  void*(APPEL* creer_)(const wchar_t*, unsigned long, unsigned long, void*, unsigned long, unsigned long,
                       void*) = nullptr;
  int(APPEL* lire_)(void*, void*, unsigned long, unsigned long*, void*) = nullptr;
  int(APPEL* fermer_)(void*) = nullptr;
  int(APPEL* effacer_)(const wchar_t*) = nullptr;
};

/// Looks at the setting each time the link is opened.
class TLienPoste : public ILienLecteur {
 public:
  explicit TLienPoste(const TReglagesPoste& reglages) : reglages_(reglages) {}

  bool CeRapiInit() override {
    QString dossier = reglages_.Lire(TRacine::Utilisateur, u"Lecteur"_s).trimmed();
    if (dossier.isEmpty()) dossier = reglages_.Lire(TRacine::Machine, u"Lecteur"_s).trimmed();
    if (dossier.isEmpty())
      lien_ = std::make_unique<TLienRapi>();
    else
      lien_ = std::make_unique<TLienDossier>(dossier);
    return lien_->CeRapiInit();
  }
  void CeRapiUnInit() override {
    if (lien_) lien_->CeRapiUnInit();
  }
  TPoignee CeCreateFile(const QString& chemin) override { return lien_->CeCreateFile(chemin); }
  bool CeReadFile(TPoignee fichier, qint64 maximum, QByteArray& lu) override {
    return lien_->CeReadFile(fichier, maximum, lu);
  }
  void CeCloseHandle(TPoignee fichier) override { lien_->CeCloseHandle(fichier); }
  bool CeDeleteFile(const QString& chemin) override { return lien_->CeDeleteFile(chemin); }

 private:
  const TReglagesPoste& reglages_;
  std::unique_ptr<ILienLecteur> lien_;
};

}  // namespace

std::unique_ptr<ILienLecteur> LienDuPoste(const TReglagesPoste& reglages) {
  return std::make_unique<TLienPoste>(reglages);
}
