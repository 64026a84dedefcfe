// Pictures of the screens on a sample school, for the documentation and for whoever works on them.
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QSettings>
#include <QTemporaryDir>

#include "core/exceptions.h"
#include "ui/commun/theme.h"
#include "ui/principal/application.h"
#include "ui/principal/programme.h"

namespace {

/// The day of the pictures, so that two runs give the same.
class THorlogeFixe : public THorloge {
 public:
  TDateTime Maintenant() const override { return EncodeDate(2016, 11, 22) + EncodeTime(9, 30, 0); }
};

class Photographe {
 public:
  Photographe(Programme& programme, QString dossier) : programme_(programme), dossier_(std::move(dossier)) {}

  /// The window as it stands, once it has dealt with what is pending.
  void Prendre(QWidget& fenetre, const QString& nom) {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
    const QString chemin = dossier_ % u'/' % nom % u".png";
    if (!fenetre.grab().save(chemin)) throw Exception(u"« " % chemin % u" » ne peut pas être écrit.");
    QTextStream(stdout) << chemin << '\n';
  }

  void Ecrans(const QString& suffixe) {
    TFrmMain& main = programme_.Main;
    main.edSearchChange(QStringLiteral("L"));
    main.Executer(TGestionnaire::AdvGlowButton2Click);
    Prendre(programme_.Fenetre, u"signaletique" % suffixe);
    main.Executer(TGestionnaire::AdvGlowButton8Click);
    Prendre(programme_.Fenetre, u"importation" % suffixe);
    main.Executer(TGestionnaire::AdvGlowButton1Click);
    Prendre(programme_.Fenetre, u"presences" % suffixe);
  }

 private:
  Programme& programme_;
  QString dossier_;
};

/// A copy of the school that the pictures may change, known as this workstation's data.
void PreparerPoste(const QTemporaryDir& poste, const QString& base) {
  const QString copie = poste.filePath(QStringLiteral("ecole.fdb"));
  if (!QFile::copy(base, copie)) throw Exception(u"« " % base % u" » ne peut pas être lu.");
  for (const auto portee : {QSettings::UserScope, QSettings::SystemScope})
    QSettings::setPath(QSettings::NativeFormat, portee, poste.path());
  TReglagesPoste reglages;
  reglages.Ecrire(TRacine::Utilisateur, QStringLiteral("Serveur"), copie);
}

int Executer(Application& application, const QString& base, const QString& dossier) {
  const QTemporaryDir poste;
  PreparerPoste(poste, base);
  if (!QDir().mkpath(dossier)) throw Exception(u"« " % dossier % u" » ne peut pas être créé.");
  const THorlogeFixe horloge;
  Programme programme(horloge);
  application.Dialogues = &programme.Dialogues;
  programme.Fenetre.Demarrer();
  QCoreApplication::processEvents();
  Photographe photographe(programme, dossier);
  const struct {
    Theme::TMode Mode;
    QSize Taille;
    QString Suffixe;
  } vues[] = {
      {Theme::TMode::Clair, {1366, 768}, {}},
      {Theme::TMode::Sombre, {1366, 768}, QStringLiteral("-sombre")},
      {Theme::TMode::Clair, {1920, 1080}, QStringLiteral("-1920")},
      {Theme::TMode::Sombre, {1920, 1080}, QStringLiteral("-1920-sombre")},
  };
  for (const auto& [mode, taille, suffixe] : vues) {
    Theme::Appliquer(application, mode);
    programme.Fenetre.resize(taille);
    photographe.Ecrans(suffixe);
  }
  programme.Fenetre.close();
  application.Dialogues = nullptr;
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  QApplication::setFont(QFont(QStringList{QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")}, 10));
  application.Preparer();
  QCommandLineParser options;
  options.addPositionalArgument(QStringLiteral("base"), {});
  options.addPositionalArgument(QStringLiteral("dossier"), {});
  options.process(application);
  const QStringList arguments = options.positionalArguments();
  if (arguments.size() != 2) {
    QTextStream(stderr) << "Usage : calpenne-captures BASE DOSSIER\n";
    return 2;
  }
  try {
    return Executer(application, arguments[0], arguments[1]);
  } catch (const Exception& e) {
    QTextStream(stderr) << e.Message << '\n';
    return 1;
  }
}
