#include "ui/principal/fenetre_principale.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>

#include "screens/principal/frm_main.h"
#include "ui/commun/dialogue_base.h"
#include "ui/commun/etat_vide.h"
#include "ui/commun/feuille_progression.h"
#include "ui/commun/theme.h"
#include "ui/principal/barre_commandes.h"
#include "ui/principal/barre_etat.h"
#include "ui/principal/dialogues_qt.h"
#include "ui/principal/guide.h"
#include "ui/principal/panneau_eleves.h"
#include "ui/principal/vue_accueil.h"
#include "ui/vues.h"

using namespace Qt::StringLiterals;

namespace {

class Trait : public QWidget {
 public:
  Trait() { setFixedWidth(1); }

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), Theme::Couleur(TRole::Ligne)); }
};

// At 10 points. The bar asks for this width, and a screen scrolls below the height that it was laid out for;
// larger text does not ask for more than the usual smallest screen has.
constexpr QSize kUsuelle(1366, 768);
constexpr QSize kMoindre(960, 480);

bool PeutPrendreFoyer(const QWidget* champ) {
  return champ->isVisible() && champ->isEnabled() && (champ->focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace

FenetrePrincipale::FenetrePrincipale(TFrmMain& form, DialoguesQt& dialogues)
    : form_(form),
      dialogues_(dialogues),
      barre_(new BarreCommandes(form)),
      eleves_(new PanneauEleves(form)),
      trait_(new Trait),
      feuille_(new FeuilleProgression),
      contenu_(new QStackedWidget),
      accueil_(new VueAccueil(form)),
      rien_(new QWidget),
      vide_(new EtatVide(rien_)),
      etat_(new BarreEtat(form)) {
  setWindowTitle(u"Calpenne"_s);
  Disposer();
  CreerTouches();
  Suivre();
  qApp->installEventFilter(this);
  connect(barre_, &BarreCommandes::GuideDemande, this, &FenetrePrincipale::MontrerGuide);
  connect(barre_, &BarreCommandes::TouchesDemandees, this, &FenetrePrincipale::MontrerTouches);
  connect(barre_, &BarreCommandes::AProposDemande, this, &FenetrePrincipale::MontrerAPropos);
  // Whatever was copied, and wherever: the hand is told.
  connect(QApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
    if (QApplication::clipboard()->ownsClipboard()) form_.Etat(TNiveauEtat::Succes, u"Copié"_s);
  });
  connect(vide_, &EtatVide::BoutonPresse, this,
          [this] { form_.Executer(TGestionnaire::AdvGlowButton2Click); });
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* present) {
    for (QWidget* zone :
         {static_cast<QWidget*>(barre_), static_cast<QWidget*>(eleves_), static_cast<QWidget*>(contenu_)})
      if (present != nullptr && zone->isAncestorOf(present)) foyers_[zone] = present;
  });
  Actualiser();
}

// The screens go before the window that holds their views.
FenetrePrincipale::~FenetrePrincipale() {
  disconnect(qApp, nullptr, this, nullptr);  // the focus still moves while the widgets end
  form_.Panneau.Vider();
}

void FenetrePrincipale::Disposer() {
  contenu_->addWidget(rien_);
  contenu_->addWidget(accueil_);
  auto* droite = new QVBoxLayout;
  droite->setContentsMargins(0, 0, 0, 0);
  droite->setSpacing(0);
  droite->addWidget(feuille_);
  droite->addWidget(contenu_, 1);
  auto* milieu = new QHBoxLayout;
  milieu->setContentsMargins(0, 0, 0, 0);
  milieu->setSpacing(0);
  milieu->addWidget(eleves_);
  milieu->addWidget(trait_);
  milieu->addLayout(droite, 1);
  auto* centre = new QWidget;
  auto* colonne = new QVBoxLayout(centre);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(0);
  colonne->addWidget(barre_);
  colonne->addLayout(milieu, 1);
  colonne->addWidget(etat_);
  setCentralWidget(centre);
  setMinimumSize(QSize(Theme::Px(kMoindre.width()), Theme::Px(kMoindre.height())).boundedTo(kUsuelle));
  resize(kUsuelle.boundedTo(screen()->availableSize()));
}

void FenetrePrincipale::Suivre() {
  liens_ += form_.SurChangement.Suivre([this] { Actualiser(); });
  liens_ += form_.SurEtape.Suivre([this](TForm& form, TEtapeForm etape) { SuivreEtape(form, etape); });
  liens_ += form_.SurSelection.Suivre([this] { eleves_->SuivreSelection(); });
  liens_ += form_.SurEtat.Suivre([this] { etat_->MontrerEtat(); });
  liens_ += form_.SurOutils.Suivre([this] { ActualiserOutils(); });
  liens_ += form_.SurTerminer.Suivre(
      [this] { QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection); });
  liens_ += form_.SurDureeBulles.Suivre([this](int ms) { dureeBulles_ = ms; });
  liens_ += dialogues_.SurProgression.Suivre(
      [this](int fait, int total, const QString& nom) { Progresser(fait, total, nom); });
}

void FenetrePrincipale::Demarrer() {
  show();
  QTimer::singleShot(0, this, [this] {
    form_.Montrer();
    if (Theme::EstTactile()) setWindowState(windowState() | Qt::WindowMaximized);  // a tablet has one window
    if (form_.SansEleve())
      accueil_->PrendreFoyer();
    else if (form_.ArbreVisible())
      eleves_->AllerALaRecherche();
  });
}

void FenetrePrincipale::Actualiser() {
  Theme::DefinirTactile(form_.PageVisible(TPage::pgRepas3));
  barre_->Actualiser();
  eleves_->setVisible(form_.ArbreVisible());
  trait_->setVisible(form_.ArbreVisible());
  eleves_->Actualiser();
  etat_->Actualiser();
  ActualiserOutils();
  ActualiserContenu();
}

void FenetrePrincipale::ActualiserOutils() {
  barre_->ActualiserOutils();
  for (const auto& [touche, outil] : touchesOutils_)
    touche->setEnabled(form_.OutilActif(outil) || form_.OutilEmpeche(outil));
}

void FenetrePrincipale::ActualiserContenu() {
  if (form_.PremiereUtilisation()) {
    accueil_->Actualiser();
    contenu_->setCurrentWidget(accueil_);
    return;
  }
  QWidget* vue = VueCourante();
  contenu_->setCurrentWidget(vue != nullptr ? Page(vue) : rien_);
  vue != nullptr ? vide_->Cacher() : vide_->Montrer(form_.SansEcran());
}

QWidget* FenetrePrincipale::VueCourante() const { return vues_.value(form_.Panneau.Courante()); }

// Views follow the forms of the panel: made when a form first shows, gone when it ends.
void FenetrePrincipale::SuivreEtape(TForm& form, TEtapeForm etape) {
  if (etape == TEtapeForm::Affichee) {
    Montrer(form);
    return;
  }
  QWidget* vue = vues_.value(&form);
  if (vue != nullptr && focusWidget() != nullptr && vue->isAncestorOf(focusWidget())) {
    foyerDuContenu_ = true;  // the screen that takes its place gets it
    QTimer::singleShot(0, this, [this] { foyerDuContenu_ = false; });
  }
  if (etape == TEtapeForm::Liberee && vue != nullptr) delete Page(vues_.take(&form));
}

// The view itself, or what scrolls it where the window is smaller than what it was laid out for.
QWidget* FenetrePrincipale::Page(QWidget* vue) const {
  while (vue->parentWidget() != contenu_) vue = vue->parentWidget();
  return vue;
}

void FenetrePrincipale::AjouterPage(QWidget* vue) {
  if (qobject_cast<QScrollArea*>(vue) != nullptr) {
    contenu_->addWidget(vue);
    return;
  }
  auto* page = new QScrollArea;
  page->setWidgetResizable(true);
  page->setFrameShape(QFrame::NoFrame);
  page->setFocusPolicy(Qt::NoFocus);
  page->setWidget(vue);
  contenu_->addWidget(page);
}

void FenetrePrincipale::Montrer(TForm& form) {
  QWidget* vue = vues_.value(&form);
  if (vue == nullptr) {
    vue = CreerVue(form, contenu_);
    if (vue == nullptr) return;
    vues_[&form] = vue;
    AjouterPage(vue);
  }
  contenu_->setCurrentWidget(Page(vue));
  if (foyerDuContenu_ || focusWidget() == nullptr) DonnerFoyer(*vue);
}

// The sheet of the open screen when it has one. A screen that has opened its own shuts it itself.
void FenetrePrincipale::Progresser(int fait, int total, const QString& nom) {
  const bool debut = total > 0 && !form_.EnTravail();
  if (debut) {
    QWidget* vue = VueCourante();
    auto* sienne = vue != nullptr ? vue->findChild<FeuilleProgression*>() : nullptr;
    feuilleEnCours_ = sienne != nullptr ? sienne : feuille_;
    feuilleOuverte_ = feuilleEnCours_->isHidden();
    // One step says nothing of how long it takes.
    if (feuilleOuverte_) feuilleEnCours_->Demarrer(form_.TexteTravail(), total > 1 ? total : 0);
  }
  if (total > 0 && feuilleEnCours_) feuilleEnCours_->Avancer(fait, nom);
  if (total <= 0 && feuilleEnCours_ && feuilleOuverte_) feuilleEnCours_->Terminer();
  form_.Travail(total);
}

void FenetrePrincipale::closeEvent(QCloseEvent* evenement) { evenement->setAccepted(form_.Fermer()); }

bool FenetrePrincipale::eventFilter(QObject* objet, QEvent* evenement) {
  if (evenement->type() == QEvent::ToolTip && dureeBulles_ > 0 && objet->isWidgetType()) {
    auto* champ = static_cast<QWidget*>(objet);
    if (champ->toolTipDuration() < 0) champ->setToolTipDuration(dureeBulles_);
  }
  return QMainWindow::eventFilter(objet, evenement);
}

void FenetrePrincipale::DonnerFoyer(QWidget& zone) {
  if (QWidget* dernier = foyers_.value(&zone); dernier != nullptr && PeutPrendreFoyer(dernier)) {
    dernier->setFocus(Qt::TabFocusReason);
    return;
  }
  if (PeutPrendreFoyer(&zone) || zone.focusProxy() != nullptr) {
    zone.setFocus(Qt::TabFocusReason);
    return;
  }
  for (QWidget* suivant = zone.nextInFocusChain(); suivant != &zone; suivant = suivant->nextInFocusChain()) {
    if (!zone.isAncestorOf(suivant) || !PeutPrendreFoyer(suivant)) continue;
    suivant->setFocus(Qt::TabFocusReason);
    return;
  }
}

void FenetrePrincipale::MontrerGuide() {
  if (!guide_) guide_ = new Guide(this);
  guide_->show();
  guide_->raise();
  guide_->activateWindow();
}

void FenetrePrincipale::MontrerTouches() {
  DialogueBase dialogue(u"Touches"_s, this);
  dialogue.Contenu()->addWidget(ListeDesTouches());
  dialogue.resize(Theme::Px(480), Theme::Px(520));
  dialogue.Annuler()->hide();
  dialogue.DefinirPrincipal(u"Fermer"_s);
  dialogue.exec();
}

void FenetrePrincipale::MontrerAPropos() { dialogues_.Information(u"Calpenne, version "_s CALPENNE_VERSION); }

// F6: bar, tree, content, and round again; backwards for sens -1.
void FenetrePrincipale::ZoneSuivante(int sens) {
  QWidget* const zones[] = {barre_, eleves_, contenu_};
  constexpr int kZones = 3;
  int ici = sens > 0 ? kZones - 1 : 0;
  for (int i = 0; i < kZones; ++i)
    if (focusWidget() != nullptr && zones[i]->isAncestorOf(focusWidget())) ici = i;
  for (int pas = 1; pas < kZones; ++pas) {
    QWidget* zone = zones[(ici + sens * pas + 2 * kZones) % kZones];
    if (!zone->isVisible()) continue;
    DonnerFoyer(*zone);
    if (focusWidget() != nullptr && zone->isAncestorOf(focusWidget())) return;
  }
}

void FenetrePrincipale::Touche(const QKeySequence& touche, std::function<void()> action) {
  auto* raccourci = new QShortcut(touche, this);
  connect(raccourci, &QShortcut::activated, this, std::move(action));
}

// Off while the open screen has no use for it, so that the key is left to the control in hand.
void FenetrePrincipale::ToucheOutil(const QKeySequence& touche, TOutil outil) {
  auto* raccourci = new QShortcut(touche, this);
  connect(raccourci, &QShortcut::activated, this, [this, outil] { form_.OutilClick(outil); });
  touchesOutils_.emplace_back(raccourci, outil);
}

void FenetrePrincipale::CreerTouches() {
  Touche(Qt::Key_F1, [this] { MontrerGuide(); });
  Touche(Qt::SHIFT | Qt::Key_F1, [this] { MontrerTouches(); });
  Touche(Qt::Key_F3, [this] { eleves_->AllerALaRecherche(); });
  Touche(Qt::Key_F5, [this] { form_.RechargerAnnee(); });
  Touche(Qt::Key_F6, [this] { ZoneSuivante(1); });
  Touche(Qt::SHIFT | Qt::Key_F6, [this] { ZoneSuivante(-1); });
  Touche(Qt::CTRL | Qt::Key_0, [this] { barre_->OuvrirMenuAnnees(); });
  for (int page = 0; page < 4; ++page)
    Touche(QKeyCombination(Qt::CTRL, static_cast<Qt::Key>(Qt::Key_1 + page)),
           [this, page] { barre_->ActiverPage(page); });
  const struct {
    QKeySequence Touche;
    TOutil Outil;
  } kOutils[] = {
      {Qt::Key_F2, TOutil::btnEdit},           {Qt::Key_F7, TOutil::btnNew},
      {Qt::Key_F9, TOutil::btnSave},           {Qt::CTRL | Qt::Key_Delete, TOutil::btnDelete},
      {Qt::Key_F8, TOutil::btnPrint},          {Qt::CTRL | Qt::Key_P, TOutil::btnPrint},
      {Qt::CTRL | Qt::Key_M, TOutil::btnMail},
  };
  for (const auto& [touche, outil] : kOutils) ToucheOutil(touche, outil);
}
