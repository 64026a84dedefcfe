// Makes the sample school: a database, and the files that it was loaded from.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>

#include "core/conversions.h"
#include "core/exceptions.h"
#include "demo/annee_suivante.h"
#include "demo/chargement.h"
#include "demo/terminal.h"

using namespace Qt::StringLiterals;

namespace {

/// The collections go before the connection that they look at.
struct TLiberation {
  TLiberation() = default;
  ~TLiberation() { Globals.Liberer(); }
  TLiberation(const TLiberation&) = delete;
  TLiberation& operator=(const TLiberation&) = delete;
};

/// A local file is written without waiting for the disk, until this goes.
class TSansEcrituresForcees {
 public:
  explicit TSansEcrituresForcees(TDataModule1& base) : base_(base) {
    base_.Deconnecter();
    base_.EcrituresForcees(false);
    base_.Connecter();
  }
  ~TSansEcrituresForcees() {
    base_.Deconnecter();
    try {
      base_.EcrituresForcees(true);
    } catch (const Exception& e) {
      base_.Dialogues().Message(e.Message);
    }
  }
  TSansEcrituresForcees(const TSansEcrituresForcees&) = delete;
  TSansEcrituresForcees& operator=(const TSansEcrituresForcees&) = delete;

 private:
  TDataModule1& base_;
};

void DeclarerOptions(QCommandLineParser& options) {
  const auto ajouter = [&](const char* nom, const char* aide, const char* valeur = nullptr,
                           const QString& defaut = {}) {
    options.addOption({QString::fromLatin1(nom), QString::fromUtf8(aide),
                       valeur == nullptr ? QString() : QString::fromLatin1(valeur), defaut});
  };
  options.setApplicationDescription(
      u"Crée l'école d'exemple : 500 élèves, l'année 2016-2017, l'automne 2017, et leurs fichiers."_s);
  ajouter("serveur", "la base à créer : un chemin en .fdb, « local » ou un serveur à la base vide", "S");
  ajouter("dossier", "où écrire les fichiers du registre, des scanners et de la banque", "D");
  ajouter("graine", "le nombre dont toute l'école découle (2016)", "N", u"2016"_s);
  ajouter("petite", "un dixième de l'école");
  options.addOption({u"aide"_s, u"ce texte"_s});
}

void Annoncer(const TBilanChargement& bilan, const TEcoleExemple& ecole, IDialogues& dialogues) {
  dialogues.Information(
      u"L'école d'exemple est prête pour %1-%2 : %3 élèves, %4 passages lus, %5 présences "
      "mémorisées, %6 anomalies laissées de côté, %7 virements."_s.arg(ecole.Annee)
          .arg(ecole.Annee + 1)
          .arg(bilan.Eleves)
          .arg(bilan.LignesPresences)
          .arg(bilan.Presences)
          .arg(bilan.Anomalies)
          .arg(bilan.Virements));
}

void Executer(const QCommandLineParser& options, IDialogues& dialogues) {
  for (const char* nom : {"serveur", "dossier"})
    if (options.value(QString::fromLatin1(nom)).isEmpty())
      throw Exception(u"L'option --" % QString::fromLatin1(nom) % u" manque.");
  TReglagesPoste reglages;
  TDataModule1 base(dialogues, reglages);
  base.ServerName = options.value(u"serveur"_s);
  const QString fichier = base.FichierLocal();
  if (!fichier.isEmpty() && QFile::exists(fichier))
    throw Exception(u"Le fichier « " % fichier % u" » existe déjà : choisissez-en un autre.");
  base.Connecter();
  const TSansEcrituresForcees sansAttente(base);
  TSansFenetre sansFenetre;
  const THorloge horloge;
  TControleur controleur(base, reglages, sansFenetre, horloge);
  const TLiberation liberation;
  const TEcoleExemple ecole = CreerEcoleExemple(
      static_cast<std::uint64_t>(StrToInt(options.value(u"graine"_s))), options.isSet(u"petite"_s));
  const QString dossier = QDir(options.value(u"dossier"_s)).absolutePath();
  Annoncer(TChargement(controleur, ecole, dossier).Tout(), ecole, dialogues);
  const TEcoleExemple suite = AnneeSuivante(ecole);
  Annoncer(TChargement(controleur, suite, dossier).Automne(), suite, dialogues);
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QLocale::setDefault(QLocale(u"fr_BE"_s));
  TDialoguesDemo dialogues;
  QCommandLineParser options;
  DeclarerOptions(options);
  if (!options.parse(QCoreApplication::arguments())) {
    dialogues.Message(options.errorText());
    return 2;
  }
  if (options.isSet(u"aide"_s)) {
    dialogues.Message(options.helpText());
    return 0;
  }
  try {
    Executer(options, dialogues);
    return 0;
  } catch (const Exception& e) {
    dialogues.Message(e.Message);
  } catch (const std::exception& e) {
    dialogues.Message(u"Erreur inattendue : " % QString::fromUtf8(e.what()));
  }
  return 1;
}
