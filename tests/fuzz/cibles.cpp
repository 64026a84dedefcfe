#include "fuzz/cibles.h"

#include <QtEndian>

#include "core/exceptions.h"
#include "report/output/pdf.h"
#include "workflows/import_presences.h"
#include "workflows/import_registre.h"

namespace {

/// Says nothing and refuses everything, whatever the bytes lead to.
class TMuet : public IDialogues {
  void Message(const QString&) override {}
  void Information(const QString&) override {}
  bool Confirmer(const QString&) override { return false; }
  std::optional<QString> Saisir(const QString&, const QString&, const QString&) override { return {}; }
  std::optional<QString> ChoisirFichier(const QString&, const QString&) override { return {}; }
  std::optional<QString> FichierAEnregistrer(const QString&, const QString&, const QString&) override {
    return {};
  }
  bool Reessayer(const TReessai&) override { return false; }
  void Progression(int, int, const QString&) override {}
  void TraiterEvenements() override {}
  void CurseurAttente(bool) override {}
};

}  // namespace

TCibles::TCibles() {
  TEcoleEssai ecole(base_);
  ecole.tarif(Essai::Matin, Essai::TousLesJours, QStringLiteral("07:00"), QStringLiteral("08:30"),
              Essai::Forfait, QStringLiteral("1"), Essai::ScanPresence);
  ecole.unEleve().enClasse(QStringLiteral("P1"), QStringLiteral("A"));
  essai_.Charger();
}

void TCibles::Registre(const QByteArray& octets) {
  TMuet muet;
  TDataModule1 base(muet, base_.Reglages);
  base.ServerName = base_.FichierDeDonnees();
  base.Connecter();
  TControleur controleur(base, base_.Reglages, essai_.Fenetre, essai_.Horloge);
  try {
    TImportRegistre import(controleur);
    if (import.Etape1(base_.Fichier(QStringLiteral("registre"), octets))) import.Etape2();
  } catch (const Exception&) {
  }
}

void TCibles::Presences(const QByteArray& octets) {
  TMuet muet;
  TDataModule1 base(muet, base_.Reglages);
  TControleur controleur(base, base_.Reglages, essai_.Fenetre, essai_.Horloge);
  try {
    TImportPresences import(controleur);
    import.ImporterFichier(base_.Fichier(QStringLiteral("scans"), octets));
    import.Etape2();
  } catch (const Exception&) {
  }
}

void TCibles::Rapport(const QByteArray& octets) {
  QByteArray fichier = QByteArrayLiteral("CALPRAP\x01????");
  qToLittleEndian(static_cast<quint32>(octets.size()), fichier.data() + 8);
  fichier += qCompress(octets, 1).mid(4);
  try {
    const TDocumentPrepare document = TDocumentPrepare::DepuisOctets(fichier);
    document.Chercher(QStringLiteral("e"));
    PdfEnOctets({&document}, document.Titre, {});
  } catch (const Exception&) {
  }
}
