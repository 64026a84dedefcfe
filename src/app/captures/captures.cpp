// Pictures of the screens on a sample school, for the documentation and for whoever works on them.
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QSettings>
#include <QTemporaryDir>
#include <functional>

#include "app/captures/photographe.h"
#include "core/data_module.h"
#include "core/fichiers.h"
#include "core/parametres.h"
#include "ui/commun/theme.h"
#include "ui/principal/application.h"

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler messages = nullptr;

/// A window that no window manager sees has no limits of size to tell it, and Qt says so each time.
void DireAutres(QtMsgType genre, const QMessageLogContext& contexte, const QString& texte) {
  if (!texte.contains("propagateSizeHints"_L1)) messages(genre, contexte, texte);
}

/// The day of the pictures, so that two runs give the same.
class THorlogeFixe : public THorloge {
 public:
  TDateTime Maintenant() const override { return Moment; }
  TDateTime Moment = EncodeDate(2016, 11, 22) + EncodeTime(9, 30, 0);
};

/// The school as it was on the day of the pictures: the year that follows is not open yet.
void OuvrirAnnee(const QString& base) {
  DialoguesQt dialogues;
  TReglagesPoste reglages;
  TDataModule1 module(dialogues, reglages);
  module.ServerName = base;
  module.Connecter();
  TParametres parametres(module);
  parametres.SetParametre(TParam::AnneeScolaire, u"2016"_s);
  parametres.Save();
}

/// A copy of the school that the pictures may change, known as this workstation's data.
void PreparerPoste(const QTemporaryDir& poste, const QString& base) {
  const QString copie = poste.filePath(u"ecole.fdb"_s);
  if (!QFile::copy(base, copie)) throw Exception(u"« " % base % u" » ne peut pas être lu.");
  for (const auto portee : {QSettings::UserScope, QSettings::SystemScope})
    QSettings::setPath(QSettings::NativeFormat, portee, poste.path());
  TReglagesPoste reglages;
  reglages.Ecrire(TRacine::Utilisateur, u"Serveur"_s, copie);
  OuvrirAnnee(copie);
}

/// In both palettes, at the smallest size and at a usual one; and on small screens. 960 x 540 are the points
/// of 1920 x 1080 at 200 %.
void ChaqueVue(Application& application, FenetrePrincipale& fenetre,
               const std::function<void(const QString&)>& prendre) {
  const struct {
    Theme::TMode Mode;
    QSize Taille;
    QString Suffixe;
  } vues[] = {
      {Theme::TMode::Clair, {1366, 768}, u"-1366x768"_s},
      {Theme::TMode::Sombre, {1366, 768}, u"-sombre-1366x768"_s},
      {Theme::TMode::Clair, {1024, 768}, u"-1024x768"_s},
      {Theme::TMode::Clair, {960, 540}, u"-960x540"_s},
      {Theme::TMode::Clair, {1920, 1080}, u"-1920x1080"_s},
      {Theme::TMode::Sombre, {1920, 1080}, u"-sombre-1920x1080"_s},
  };
  for (const auto& [mode, taille, suffixe] : vues) {
    Theme::Appliquer(application, mode);
    fenetre.resize(taille);
    prendre(suffixe);
  }
}

void Commencer(Application& application, const QTemporaryDir& poste, const TSujet& sujet) {
  TReglagesPoste().Ecrire(TRacine::Utilisateur, u"Serveur"_s, poste.filePath(u"nouvelle.fdb"_s));
  const THorlogeFixe horloge;
  Programme programme(horloge);
  Photographe photographe(programme, sujet);
  photographe.Commencer();
  ChaqueVue(application, programme.Fenetre,
            [&](const QString& suffixe) { photographe.PremiereUtilisation(suffixe); });
  programme.Fenetre.close();
}

/// A tablet that serves without a server, at its size in both palettes; its folder may be empty.
void Tablette(Application& application, const QString& dossier, const TSujet& sujet,
              const std::function<void(Photographe&, THorlogeFixe&, const QString&)>& prendre) {
  TReglagesPoste reglages;
  reglages.Ecrire(TRacine::Utilisateur, u"DossierPresences"_s, dossier);
  reglages.Ecrire(TRacine::Utilisateur, u"Offline"_s, u"1"_s);
  THorlogeFixe horloge;
  Programme programme(horloge);
  programme.Fenetre.Demarrer();
  Attendre(50);
  Photographe photographe(programme, sujet);
  for (const auto& [mode, suffixe] : {std::pair(Theme::TMode::Clair, u"-1280x800"_s),
                                      std::pair(Theme::TMode::Sombre, u"-sombre-1280x800"_s)}) {
    Theme::Appliquer(application, mode);
    programme.Fenetre.showNormal();
    programme.Fenetre.resize(1280, 800);
    prendre(photographe, horloge, suffixe);
  }
  programme.Fenetre.close();
  Globals = {};
  for (const QString& nom : {u"Offline"_s, u"Tablette"_s}) reglages.Ecrire(TRacine::Utilisateur, nom, u"0"_s);
}

/// Serving, its clock wrong, its meals on their way; then a tablet that has no pupils yet.
void Tablettes(Application& application, const QTemporaryDir& poste, const QString& dossier,
               const TSujet& sujet) {
  const QString copie = poste.filePath(u"tablette"_s);
  QDir().mkpath(copie);
  for (const QString& fichier : QDir(dossier).entryList(QDir::Files))
    QFile::copy(dossier % u'/' % fichier, copie % u'/' % fichier);
  Tablette(application, copie, sujet,
           [](Photographe& photographe, THorlogeFixe& horloge, const QString& suffixe) {
             photographe.Tablette(suffixe);
             horloge.Moment += 2000.0;
             photographe.TabletteAuRouge();
             horloge.Moment -= 2000.0;
           });
  // Who is not of the year, and a Sunday.
  const QString repas = copie % u"/presences.txt";
  QByteArray lignes = LireFichier(repas);
  lignes += "999;2;20161122;120000000;1\n553701772;2;20161120;120000000;1\n";
  EcrireFichier(repas, lignes);
  Tablette(application, copie, sujet, [](Photographe& photographe, THorlogeFixe&, const QString& suffixe) {
    photographe.Transfert(suffixe);
  });
  Tablette(application, poste.filePath(u"neuve"_s), sujet,
           [](Photographe& photographe, THorlogeFixe&, const QString& suffixe) {
             photographe.TabletteVide(suffixe);
           });
}

void Ecrans(Application& application, const TSujet& sujet) {
  const THorlogeFixe horloge;
  Programme programme(horloge);
  application.Dialogues = &programme.Dialogues;
  programme.Fenetre.Demarrer();
  Attendre(50);
  Photographe photographe(programme, sujet);
  ChaqueVue(application, programme.Fenetre, [&](const QString& suffixe) { photographe.Tout(suffixe); });
  programme.Fenetre.close();
  application.Dialogues = nullptr;
}

void Executer(Application& application, const QString& base, const TSujet& sujet) {
  const QTemporaryDir poste;
  PreparerPoste(poste, base);
  if (!QDir().mkpath(sujet.Dossier)) throw Exception(u"« " % sujet.Dossier % u" » ne peut pas être créé.");
  if (const QString tablette = QFileInfo(base).dir().filePath(u"tablette"_s); QDir(tablette).exists())
    Tablettes(application, poste, tablette, sujet);
  else
    QTextStream(stderr) << "« " << tablette
                        << " » n'existe pas : les écrans de la tablette ne sont pas pris.\n";
  Ecrans(application, sujet);
  Globals = {};
  Commencer(application, poste, sujet);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  messages = qInstallMessageHandler(DireAutres);
  Application application(argc, argv);
  QApplication::setFont(QFont(QStringList{u"Noto Sans"_s, u"DejaVu Sans"_s}, 10));
  application.Preparer();
  QCommandLineParser options;
  options.process(application);
  const QStringList arguments = options.positionalArguments();
  if (arguments.size() != 5) {
    QTextStream(stderr) << "Usage : calpenne-captures BASE REGISTRE PRESENCES RELEVE DOSSIER\n";
    return 2;
  }
  try {
    Executer(application, arguments[0], {arguments[1], arguments[2], arguments[3], arguments[4]});
    return 0;
  } catch (const Exception& e) {
    QTextStream(stderr) << e.Message << '\n';
    return 1;
  }
}
