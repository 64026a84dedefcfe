// The desktop program on an offscreen window: its start, and the pupil record that follows the tree.
#include <QKeyEvent>
#include <QSettings>
#include <QTreeView>
#include <cstdio>

#include "bench/barre.h"
#include "bench/chronometre.h"
#include "bench/sujets.h"
#include "core/calendrier_scolaire.h"
#include "core/exceptions.h"
#include "ui/principal/application.h"
#include "ui/principal/panneau_eleves.h"
#include "ui/principal/programme.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTours = 7;
constexpr int kPatience = 1000;  // turns of the event loop

/// Whether the watched widget was painted once the year stood.
class TPremiereImage : public QObject {
 public:
  TPremiereImage(QWidget& objet, const TFrmMain& form) : form_(form) { objet.installEventFilter(this); }
  bool Vue = false;

 private:
  bool eventFilter(QObject*, QEvent* evenement) override {
    if (evenement->type() == QEvent::Paint && form_.EstRelie() && form_.NombreEleves() > 0) Vue = true;
    return false;
  }

  const TFrmMain& form_;
};

/// The program as its start leaves it: the year loaded, the tree painted, nothing pending.
std::unique_ptr<Programme> Demarrer(const THorloge& horloge) {
  auto programme = std::make_unique<Programme>(horloge);
  TPremiereImage image(*programme->Fenetre.Eleves()->Arbre()->viewport(), programme->Main);
  programme->Fenetre.setWindowState(Qt::WindowMaximized);
  programme->Fenetre.Demarrer();
  for (int tour = 0; tour < kPatience && !image.Vue; ++tour) QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  if (!image.Vue) throw Exception(u"La fenêtre principale n'a pas montré les élèves."_s);
  return programme;
}

void Terminer(std::unique_ptr<Programme> programme) {
  programme->Fenetre.close();
  QCoreApplication::processEvents();
  programme.reset();
  Globals = {};
}

void MesurerDemarrage(TEcole& ecole, const THorloge& horloge) {
  std::vector<double> demarrages, charges;
  for (int i = 0; i < kTours; ++i) {       // in turns, so that a busy machine slows both
    std::unique_ptr<TDonneesAnnee> annee;  // freed outside the time of its load
    charges.push_back(Duree([&] { annee = ecole.Charger(); }));
    annee.reset();
    ecole.Base().Deconnecter();  // the engine starts again too, as in a new process
    std::unique_ptr<Programme> programme;
    demarrages.push_back(Duree([&] { programme = Demarrer(horloge); }));
    Terminer(std::move(programme));
    ecole.Base().Connecter();
  }
  Barre("start to usable main window / year load alone", Mediane(demarrages) / Mediane(charges), 1.5, true);
  std::fprintf(stderr, "# start %.3f s, year load %.3f s\n", Mediane(demarrages), Mediane(charges));
}

/// The key goes down and up; the values stand in the view, and so does its layout.
void Descendre(QTreeView& arbre) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent touche(type, Qt::Key_Down, Qt::NoModifier);
    QCoreApplication::sendEvent(&arbre, &touche);
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

/// Seconds of the seven cost operations over the school year; the second time, as what the first one
/// brings into the caches is no part of what the record costs.
double Calculer(const TEleve& eleve) {
  TLignesService lignes;
  const TPeriode annee = BornesAnnee(TEcole::kAnnee);
  double duree = 0.0;
  for (int i = 0; i < 2; ++i)
    duree = Duree([&] {
      for (const TService service : kServices) eleve.CoutService(service, annee, lignes);
    });
  return duree;
}

void MesurerFiches(const THorloge& horloge) {
  auto programme = Demarrer(horloge);
  FenetrePrincipale& fenetre = programme->Fenetre;
  programme->Main.Executer(TGestionnaire::AdvGlowButton2Click);
  QTreeView& arbre = *fenetre.Eleves()->Arbre();
  arbre.expandAll();
  arbre.setFocus();
  arbre.setCurrentIndex(arbre.model()->index(0, 0));
  QCoreApplication::processEvents();
  if (fenetre.VueCourante() == nullptr) throw Exception(u"La fiche ne s'est pas ouverte."_s);

  std::vector<double> rapports, fiches, peintes, calculs;
  for (const TEleve* avant = nullptr;; avant = Globals.EleveCourant) {
    const QModelIndex ici = arbre.currentIndex();
    const double fiche = Duree([&] { Descendre(arbre); });
    const double peinture = Duree([] { QCoreApplication::processEvents(); });
    if (arbre.currentIndex() == ici) break;                                          // the last one
    if (Globals.EleveCourant == nullptr || Globals.EleveCourant == avant) continue;  // a class
    const double calcul = Calculer(*Globals.EleveCourant);
    rapports.push_back(fiche / calcul);
    fiches.push_back(1e3 * fiche);
    peintes.push_back(1e3 * (fiche + peinture));
    calculs.push_back(1e6 * calcul);
  }
  if (rapports.size() < 500) throw Exception(u"Il manque des élèves dans l'arbre."_s);
  Barre("record of the next pupil by the arrow key / its seven cost operations", Mediane(rapports), 15.0,
        true);
  std::fprintf(stderr, "# record in the view %.2f ms, painted %.2f ms, seven operations %.0f µs\n",
               Mediane(fiches), Mediane(peintes), Mediane(calculs));
  Terminer(std::move(programme));
}

}  // namespace

void MesurerEcran(TEcole& ecole, const QTemporaryDir& dossier) {
  for (const auto portee : {QSettings::UserScope, QSettings::SystemScope})
    QSettings::setPath(QSettings::NativeFormat, portee, dossier.path());
  TReglagesPoste().Ecrire(TRacine::Utilisateur, u"Serveur"_s, ecole.Base().ServerName);
  const THorloge horloge;
  MesurerDemarrage(ecole, horloge);
  MesurerFiches(horloge);
}
