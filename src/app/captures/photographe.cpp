#include "app/captures/photographe.h"

#include <QAction>
#include <QApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>

#include "application/globals.h"
#include "screens/commun/frm_liste.h"

using namespace Qt::StringLiterals;

void Attendre(int ms) {
  QEventLoop boucle;
  QTimer::singleShot(ms, &boucle, &QEventLoop::quit);
  boucle.exec();
}

QAbstractButton* Bouton(const QWidget& fenetre, const QString& texte) {
  for (QAbstractButton* bouton : fenetre.findChildren<QAbstractButton*>())
    if (QString(bouton->text()).remove(u'&') == texte) return bouton;
  throw Exception(u"« " % texte % u" » manque.");
}

Photographe::Photographe(Programme& programme, TSujet sujet)
    : programme_(programme), sujet_(std::move(sujet)) {
  minuterie_.setSingleShot(true);
  connect(&minuterie_, &QTimer::timeout, this, &Photographe::Repondre);
}

void Photographe::Tout(const QString& suffixe) {
  using enum TGestionnaire;
  suffixe_ = suffixe;
  Signaletique();
  Dialogues();
  Liste(AdvGlowButton5Click, 3, u"edCout"_s, u"services-tarifs"_s);
  Liste(AdvGlowButton16Click, 2, u"edMontant"_s, u"frais"_s);
  Liste(btnActivitesClick, 1, u"edDateFin"_s, u"activites"_s);
  Pages(AdvGlowButton6Click, u"parametres"_s);
  Pages(AdvGlowButton3Click, u"mon-ecole"_s);
  Pages(AdvGlowButton7Click, u"statistiques"_s);
  programme_.Main.Executer(AdvGlowButton2Click);
  Assistant();
  Manques();
  Repas();
  Virements();
  Importation();
  Presences();
}

void Photographe::Commencer() {
  Suivre({[](QWidget& fenetre) {
    Bouton(fenetre, u"Oui"_s)->click();
    return true;
  }});
  programme_.Fenetre.Demarrer();
  Attendre(3000);
}

void Photographe::PremiereUtilisation(const QString& suffixe) {
  suffixe_ = suffixe;
  Attendre(50);
  Prendre(programme_.Fenetre, u"premiere-utilisation"_s);
}

void Photographe::Prendre(const QString& nom) {
  Attendre(50);
  Prendre(programme_.Fenetre, nom);
}

void Photographe::Prendre(QWidget& fenetre, const QString& nom) {
  const QString chemin = sujet_.Dossier % u'/' % nom % suffixe_ % u".png";
  if (!fenetre.grab().save(chemin)) throw Exception(u"« " % chemin % u" » ne peut pas être écrit.");
  QTextStream(stdout) << chemin << '\n';
}

void Photographe::Suivre(std::deque<TPas> pas) {
  pas_ = std::move(pas);
  minuterie_.start(50);
}

void Photographe::Repondre() {
  minuterie_.start(100);
  QWidget* fenetre = QApplication::activeModalWidget();
  if (fenetre == nullptr || !fenetre->isVisible()) return;
  if (pas_.empty()) {  // a message is told, a second preview passed over
    if (const auto* message = qobject_cast<QMessageBox*>(fenetre))
      QTextStream(stderr) << message->text() << '\n';
    fenetre->close();
    return;
  }
  const TPas pas = pas_.front();
  pas_.pop_front();
  if (!pas(*fenetre)) pas_.push_front(pas);
}

Photographe::TPas Photographe::Photo(const QString& nom) {
  return [this, nom](QWidget& fenetre) {
    Prendre(fenetre, nom);
    fenetre.close();
    return true;
  };
}

Photographe::TPas Photographe::Fichier(const QString& chemin) {
  return [chemin](QWidget& fenetre) {
    auto& dialogue = dynamic_cast<QFileDialog&>(fenetre);
    dialogue.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(chemin);
    QMetaObject::invokeMethod(&dialogue, "accept");
    return true;
  };
}

void Photographe::Declencher(const QString& texte) {
  for (QAction* action : programme_.Fenetre.findChildren<QAction*>())
    if (action->text().startsWith(texte)) return action->trigger();
  throw Exception(u"« " % texte % u" » manque.");
}

void Photographe::ChoisirEleve() {
  programme_.Main.edSearchChange(u"LAMB"_s);
  if (Globals.EleveCourant == nullptr) programme_.Main.edSearchChange((*Globals.Eleves->begin()).Nom);
}

void Photographe::Liste(TGestionnaire ecran, int ligne, const QString& champ, const QString& nom) {
  programme_.Main.Executer(ecran);
  auto* form = dynamic_cast<TFrmListe*>(programme_.Main.Panneau.Courante());
  if (form == nullptr) throw Exception(u"« " % nom % u" » ne s'ouvre pas.");
  form->Grille.ChoisirLigne(ligne);
  form->Modifier();
  form->Champs().SurFoyer(form->Champs().Indice(champ));
  Attendre(50);
  Prendre(programme_.Fenetre, nom);
  form->Annuler();
}

void Photographe::Pages(TGestionnaire ecran, const QString& nom) {
  programme_.Main.Executer(ecran);
  QWidget* vue = programme_.Fenetre.VueCourante();
  auto* pages = vue != nullptr ? vue->findChild<QTabWidget*>() : nullptr;
  if (pages == nullptr) throw Exception(u"« " % nom % u" » ne s'ouvre pas.");
  for (int i = 0; i < pages->count(); ++i) {
    pages->setCurrentIndex(i);
    Attendre(50);
    Prendre(programme_.Fenetre, nom % u'-' % QString::number(i + 1));
  }
}
