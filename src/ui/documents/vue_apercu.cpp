#include "ui/documents/vue_apercu.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <algorithm>
#include <functional>

#include "screens/documents/frm_apercu.h"
#include "ui/commun/bouton.h"
#include "ui/commun/dialogue_base.h"
#include "ui/commun/marque_etat.h"
#include "ui/documents/dialogue_papier.h"
#include "ui/documents/filet.h"
#include "ui/documents/impression.h"
#include "ui/documents/pages_apercu.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kIconeBarre = 22;

}  // namespace

VueApercu::VueApercu(TFrmApercu& form, QWidget* parent) : QDialog(parent), form_(form) {
  setWindowFlags(Qt::Window | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint);
  setWindowState(Qt::WindowMaximized);
  auto* colonne = new QVBoxLayout(this);
  colonne->setContentsMargins(0, 0, 0, 0);
  colonne->setSpacing(0);
  barre_ = CreerBarre();
  colonne->addWidget(barre_);
  colonne->addWidget(new Filet(Qt::Horizontal));
  auto* milieu = new QHBoxLayout;
  milieu->setSpacing(0);
  cote_ = CreerNavigateur();
  pages_ = new PagesApercu(form_);
  milieu->addWidget(cote_);
  milieu->addWidget(pages_, 1);
  colonne->addLayout(milieu, 1);
  colonne->addWidget(new Filet(Qt::Horizontal));
  colonne->addWidget(CreerPied());
  CreerRaccourcis();
  Suivre();
  Rafraichir();
  pages_->setFocus();
}

void VueApercu::Suivre() {
  liens_ += form_.SurChangement.Suivre([this] { Rafraichir(); });
  liens_ += form_.SurMontrer.Suivre([this](int page, const QRectF& place) { pages_->Montrer(page, place); });
  liens_ += form_.SurImprimer.Suivre([this](const TDocumentPrepare& document, QString& imprimante) {
    imprimante = ImprimerAvecDialogue(document, form_.PageCourante(), form_.Dialogues(), this);
  });
  connect(&minuterie_, &QTimer::timeout, this, [this] { form_.Continuer(); });
  minuterie_.setInterval(0);
}

QPushButton* VueApercu::Commande(QHBoxLayout& ligne, const QString& texte, const QString& icone,
                                 const QString& bulle, bool principale) {
  QPushButton* bouton = principale ? BoutonPrincipal(texte, icone) : BoutonDiscret(texte, icone);
  const int cote = Theme::Px(kIconeBarre);
  bouton->setIconSize({cote, cote});
  bouton->setMinimumHeight(Theme::Px(34));
  bouton->setFocusPolicy(Qt::TabFocus);
  bouton->setToolTip(bulle);
  bouton->setAccessibleName(texte.isEmpty() ? bulle.section(u" ("_s, 0, 0) : texte);
  if (!texte.isEmpty()) pliables_.emplace_back(bouton, texte);
  ligne.addWidget(bouton);
  return bouton;
}

QWidget* VueApercu::CreerBarre() {
  auto* barre = new QWidget;
  auto* ligne = new QHBoxLayout(barre);
  const int marge = Theme::Px(7);
  ligne->setContentsMargins(Theme::Px(8), marge, Theme::Px(8), marge);
  ligne->setSpacing(Theme::Px(4));
  CreerCommandes(*ligne);
  ligne->addWidget(new Filet(Qt::Vertical));
  CreerZoom(*ligne);
  ligne->addStretch(1);
  CreerRecherche(*ligne);
  // Folded it may become as narrow as that, whatever the words need.
  for (const auto& [bouton, texte] : pliables_) bouton->setText({});
  barre->setMinimumWidth(ligne->minimumSize().width());
  return barre;
}

void VueApercu::CreerCommandes(QHBoxLayout& ligne) {
  const auto faire = [this](QPushButton* bouton, void (TFrmApercu::*action)()) {
    connect(bouton, &QPushButton::clicked, this, [this, action] { std::invoke(action, form_); });
  };
  faire(Commande(ligne, u"Imprimer"_s, u"document-print"_s, u"Imprimer (Ctrl+P)"_s, true),
        &TFrmApercu::btnImprimerClick);
  faire(Commande(ligne, u"Exporter en PDF"_s, u"document-export"_s, u"Exporter en PDF (Ctrl+E)"_s),
        &TFrmApercu::btnExporterClick);
  ligne.addWidget(new Filet(Qt::Vertical));
  faire(Commande(ligne, u"Ouvrir"_s, u"document-open"_s, u"Ouvrir un rapport enregistré (Ctrl+O)"_s),
        &TFrmApercu::btnOuvrirClick);
  faire(Commande(ligne, u"Enregistrer"_s, u"document-save"_s, u"Enregistrer le rapport (Ctrl+S)"_s),
        &TFrmApercu::btnEnregistrerClick);
  papier_ = Commande(ligne, u"Mise en page"_s, u"document-properties"_s,
                     u"Format, orientation et marge du papier"_s);
  connect(papier_, &QPushButton::clicked, this, &VueApercu::ChoisirPapier);
  ligne.addWidget(new Filet(Qt::Vertical));
  navigateur_ =
      Commande(ligne, u"Navigateur"_s, u"view-list-tree"_s, u"Montrer ou cacher le navigateur (Ctrl+N)"_s);
  navigateur_->setCheckable(true);
  navigateur_->setChecked(true);
  connect(navigateur_, &QPushButton::toggled, this, [this](bool montre) { cote_->setVisible(montre); });
}

void VueApercu::CreerZoom(QHBoxLayout& ligne) {
  const auto moins = Commande(ligne, {}, u"list-remove"_s, u"Réduire (Ctrl+-)"_s);
  zoom_ = new QComboBox;
  zoom_->setEditable(true);
  zoom_->setInsertPolicy(QComboBox::NoInsert);
  zoom_->addItems(TFrmApercu::ChoixZoom());
  zoom_->setCompleter(nullptr);
  zoom_->setAccessibleName(u"Zoom"_s);
  zoom_->lineEdit()->setAccessibleName(u"Zoom"_s);
  zoom_->setToolTip(u"Zoom (Ctrl+0 : 100 %)"_s);
  zoom_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  zoom_->setMinimumContentsLength(5);
  zoom_->view()->setMinimumWidth(Theme::Px(140));
  ligne.addWidget(zoom_);
  const auto plus = Commande(ligne, {}, u"list-add"_s, u"Agrandir (Ctrl++)"_s);
  const auto largeur = Commande(ligne, {}, u"zoom-fit-best"_s, u"Page entière"_s);
  connect(moins, &QPushButton::clicked, this, [this] { form_.ZoomMoins(); });
  connect(plus, &QPushButton::clicked, this, [this] { form_.ZoomPlus(); });
  connect(largeur, &QPushButton::clicked, this, [this] { form_.Zoomer(TModeZoom::Page); });
  const auto lire = [this] {
    zoom_->lineEdit()->setModified(false);
    if (!form_.ZoomerTexte(zoom_->currentText())) Rafraichir();
  };
  connect(zoom_, &QComboBox::activated, this, lire);
  // Leaving the field must not turn "Largeur" into the percentage that it shows.
  connect(zoom_->lineEdit(), &QLineEdit::editingFinished, this, [this, lire] {
    if (zoom_->lineEdit()->isModified()) lire();
  });
}

void VueApercu::CreerRecherche(QHBoxLayout& ligne) {
  trouve_ = new Etiquette({}, TRole::Secondaire);
  recherche_ = new QLineEdit;
  recherche_->setPlaceholderText(u"Rechercher (Ctrl+F)"_s);
  recherche_->setAccessibleName(u"Rechercher dans le document"_s);
  recherche_->setToolTip(u"Ctrl+F ; suivant : F3 ou Entrée ; précédent : Maj+F3"_s);
  recherche_->setClearButtonEnabled(true);
  recherche_->addAction(Theme::Icone(u"edit-find"_s, TRole::Secondaire), QLineEdit::LeadingPosition);
  recherche_->setMinimumWidth(Theme::Px(140));
  recherche_->setMaximumWidth(Theme::Px(200));
  for (QWidget* champ : {static_cast<QWidget*>(recherche_), static_cast<QWidget*>(zoom_->lineEdit())})
    champ->installEventFilter(this);
  ligne.addWidget(trouve_);
  ligne.addWidget(recherche_, 2);
  connect(recherche_, &QLineEdit::textChanged, this, [this](const QString& texte) { form_.Chercher(texte); });
  connect(recherche_, &QLineEdit::returnPressed, this, [this] { form_.ChercherSuivant(); });
  QPushButton* fermer = BoutonSimple(u"Fermer"_s);
  fermer->setToolTip(u"Fermer l'aperçu (Échap)"_s);
  ligne.addWidget(fermer);
  connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
}

QWidget* VueApercu::CreerNavigateur() {
  auto* cote = new QWidget;
  auto* colonne = new QVBoxLayout(cote);
  const int marge = Theme::Px(12);
  colonne->setContentsMargins(marge, marge, marge, marge);
  colonne->setSpacing(Theme::Px(8));
  cote->setFixedWidth(Theme::Px(248));
  titre_ = new Etiquette({}, TRole::Texte, &Theme::TitreSection);
  arbre_ = new QTreeWidget;
  arbre_->setColumnCount(2);
  arbre_->setHeaderHidden(true);
  arbre_->setUniformRowHeights(true);
  arbre_->setAllColumnsShowFocus(true);
  arbre_->setRootIsDecorated(false);
  arbre_->setIndentation(Theme::Px(12));
  arbre_->setAccessibleName(u"Navigateur"_s);
  arbre_->header()->setStretchLastSection(false);
  arbre_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  arbre_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  colonne->addWidget(titre_);
  colonne->addWidget(arbre_, 1);
  connect(arbre_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* entree) {
    if (entree != nullptr) form_.ChoisirEntree(entree->data(0, Qt::UserRole).toInt());
  });
  return cote;
}

QPushButton* VueApercu::BoutonPage(QHBoxLayout& ligne, const QString& icone, const QString& nom,
                                   int (*page)(int, int)) {
  QPushButton* bouton = Commande(ligne, {}, icone, nom);
  connect(bouton, &QPushButton::clicked, this,
          [this, page] { form_.AllerPage(page(form_.PageCourante(), form_.PagesPretes())); });
  return bouton;
}

QWidget* VueApercu::CreerPied() {
  auto* pied = new QWidget;
  auto* ligne = new QHBoxLayout(pied);
  ligne->setContentsMargins(Theme::Px(12), 0, Theme::Px(12), 0);
  ligne->setSpacing(Theme::Px(4));
  BoutonPage(*ligne, u"go-first"_s, u"Première page (Ctrl+Début)"_s, [](int, int) { return 0; });
  BoutonPage(*ligne, u"go-previous"_s, u"Page précédente (Ctrl+PgPréc)"_s,
             [](int page, int) { return page - 1; });
  page_ = new QLineEdit;
  page_->setValidator(new QIntValidator(1, 99999, page_));
  page_->setFixedWidth(Theme::Px(48));
  page_->setAccessibleName(u"Page"_s);
  connect(page_, &QLineEdit::editingFinished, this, [this] {
    if (!page_->isModified()) return;
    page_->setModified(false);
    form_.AllerPage(page_->text().toInt() - 1);
  });
  sur_ = new Etiquette;
  ligne->addWidget(new Etiquette(u"Page"_s));
  ligne->addWidget(page_);
  ligne->addWidget(sur_);
  BoutonPage(*ligne, u"go-next"_s, u"Page suivante (Ctrl+PgSuiv)"_s, [](int page, int) { return page + 1; });
  BoutonPage(*ligne, u"go-last"_s, u"Dernière page (Ctrl+Fin)"_s, [](int, int pages) { return pages - 1; });
  etat_ = new MarqueEtat;
  ligne->addSpacing(Theme::Px(16));
  ligne->addWidget(etat_, 1);
  defauts_ = BoutonDiscret({}, u"data-warning"_s);
  defauts_->setIcon(Theme::Icone(u"data-warning"_s, TRole::Alerte));
  connect(defauts_, &QPushButton::clicked, this, &VueApercu::MontrerDefauts);
  pretes_ = new MarqueEtat;
  format_ = new Etiquette({}, TRole::Secondaire);
  ligne->addWidget(defauts_);
  ligne->addWidget(pretes_);
  ligne->addSpacing(Theme::Px(12));
  ligne->addWidget(format_);
  return pied;
}

void VueApercu::CreerRaccourcis() {
  const std::pair<QKeySequence, std::function<void()>> raccourcis[] = {
      {QKeySequence::Print, [this] { form_.btnImprimerClick(); }},
      {Qt::CTRL | Qt::Key_E, [this] { form_.btnExporterClick(); }},
      {QKeySequence::Open, [this] { form_.btnOuvrirClick(); }},
      {QKeySequence::Save, [this] { form_.btnEnregistrerClick(); }},
      {Qt::CTRL | Qt::Key_N, [this] { navigateur_->toggle(); }},
      {Qt::CTRL | Qt::Key_F,
       [this] {
         recherche_->setFocus(Qt::ShortcutFocusReason);
         recherche_->selectAll();
       }},
      {Qt::Key_F3, [this] { form_.ChercherSuivant(); }},
      {Qt::SHIFT | Qt::Key_F3, [this] { form_.ChercherSuivant(-1); }},
      {Qt::CTRL | Qt::Key_Plus, [this] { form_.ZoomPlus(); }},
      {Qt::CTRL | Qt::Key_Equal, [this] { form_.ZoomPlus(); }},
      {Qt::CTRL | Qt::Key_Minus, [this] { form_.ZoomMoins(); }},
      {Qt::CTRL | Qt::Key_0, [this] { form_.Zoomer(TModeZoom::Facteur); }},
  };
  for (const auto& [touches, action] : raccourcis)
    connect(new QShortcut(touches, this), &QShortcut::activated, this, action);
}

void VueApercu::resizeEvent(QResizeEvent* evenement) {
  QDialog::resizeEvent(evenement);
  Plier();
}

/// Where there is no room for the words of the commands their icons and tips must do.
void VueApercu::Plier() {
  for (const auto& [bouton, texte] : pliables_) bouton->setText(texte);
  if (barre_->layout()->sizeHint().width() <= width()) return;
  for (const auto& [bouton, texte] : pliables_) bouton->setText({});
}

void VueApercu::keyPressEvent(QKeyEvent* evenement) {
  constexpr Qt::Key kDesPages[] = {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End};
  if (std::ranges::count(kDesPages, evenement->key()) > 0) return pages_->keyPressEvent(evenement);
  // No button answers Enter: a press too many must not print.
  if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter) return;
  QDialog::keyPressEvent(evenement);
}

/// Escape in the search field empties it first.
bool VueApercu::eventFilter(QObject* objet, QEvent* evenement) {
  const bool annonce = evenement->type() == QEvent::ShortcutOverride;
  if (!annonce && evenement->type() != QEvent::KeyPress) return QDialog::eventFilter(objet, evenement);
  const auto* touche = static_cast<QKeyEvent*>(evenement);
  // On some systems a field would take the export's key for the end of its line.
  if (annonce && touche->modifiers() == Qt::ControlModifier && touche->key() == Qt::Key_E) {
    evenement->ignore();
    return true;
  }
  if (objet != recherche_ || touche->key() != Qt::Key_Escape) return QDialog::eventFilter(objet, evenement);
  if (recherche_->text().isEmpty()) return false;
  evenement->accept();
  if (!annonce) recherche_->clear();
  return true;
}

void VueApercu::Rafraichir() {
  if (form_.Complet())
    minuterie_.stop();
  else if (!minuterie_.isActive())
    minuterie_.start();
  pages_->Rafraichir();
  RafraichirNavigateur();
  RafraichirPied();
  papier_->setEnabled(form_.PapierModifiable());
  const QSignalBlocker bloqueur(zoom_);
  if (!zoom_->lineEdit()->hasFocus() || !zoom_->lineEdit()->isModified())
    zoom_->setEditText(form_.TexteZoom());
  trouve_->setText(form_.TexteRecherche());
}

void VueApercu::RafraichirNavigateur() {
  const QSignalBlocker bloqueur(arbre_);
  if (version_ != form_.Version()) {
    setWindowTitle(u"Aperçu : " % form_.Document().Titre);
    const int nombre = static_cast<int>(form_.Navigateur().size());
    if (nombre < static_cast<int>(entrees_.size()) || !form_.Complet()) {
      arbre_->clear();
      entrees_.clear();
    }
    version_ = form_.Version();
  }
  QTreeWidgetItem* tete = nullptr;
  for (auto i = entrees_.size(); i-- > 0 && tete == nullptr;)
    if (entrees_[i]->parent() == nullptr) tete = entrees_[i];
  for (std::size_t i = entrees_.size(); i < form_.Navigateur().size(); ++i) {
    const TEntreeNavigateur& entree = form_.Navigateur()[i];
    auto* ligne =
        entree.Niveau > 0 && tete != nullptr ? new QTreeWidgetItem(tete) : new QTreeWidgetItem(arbre_);
    ligne->setText(0, entree.Texte);
    ligne->setToolTip(0, entree.Texte);
    ligne->setText(1, u"p. " % QString::number(entree.Page + 1));
    ligne->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    ligne->setForeground(1, Theme::Couleur(TRole::Secondaire));
    ligne->setData(0, Qt::UserRole, static_cast<int>(i));
    if (entree.Niveau == 0) tete = ligne;
    if (entree.Niveau > 0 && tete != nullptr && !tete->isExpanded()) {
      arbre_->setRootIsDecorated(true);
      tete->setExpanded(true);
      tete->setFont(0, Theme::Gras());
    }
    entrees_.push_back(ligne);
  }
  titre_->setText(form_.TitreNavigateur());
  // A choice of the user's on that page stays.
  const QTreeWidgetItem* choisie = arbre_->currentItem();
  const int page = choisie ? form_.Navigateur()[choisie->data(0, Qt::UserRole).toUInt()].Page : -1;
  const int courante = form_.EntreeCourante();
  if (courante < 0 || courante >= static_cast<int>(entrees_.size()) || page == form_.PageCourante()) return;
  arbre_->setCurrentItem(entrees_[static_cast<std::size_t>(courante)]);
}

void VueApercu::RafraichirPied() {
  const int pages = form_.PagesPretes();
  if (!page_->hasFocus() || !page_->isModified())
    page_->setText(pages == 0 ? QString() : QString::number(form_.PageCourante() + 1));
  sur_->setText(u"sur " % QString::number(pages) % (form_.Complet() ? u"" : u"…"));
  etat_->Definir(form_.NiveauEtat, form_.Etat);
  defauts_->setText(form_.TexteDefauts());
  defauts_->setVisible(!form_.TexteDefauts().isEmpty());
  pretes_->Definir(form_.Complet() ? TNiveauEtat::Succes : TNiveauEtat::Neutre, form_.TextePretes());
  format_->setText(form_.TextePapier());
}

void VueApercu::ChoisirPapier() {
  DialoguePapier dialogue(form_.Papier(), this);
  if (dialogue.exec() == QDialog::Accepted) form_.ChangerPapier(dialogue.Papier());
}

void VueApercu::MontrerDefauts() {
  DialogueBase dialogue(form_.TexteDefauts(), this);
  auto* liste = new QListWidget;
  liste->addItems(form_.Defauts());
  liste->setWordWrap(true);
  liste->setAccessibleName(u"Avertissements"_s);
  dialogue.Contenu()->addWidget(liste);
  dialogue.resize(Theme::Px(600), Theme::Px(320));
  dialogue.Annuler()->hide();
  dialogue.DefinirPrincipal(u"Fermer"_s);
  dialogue.exec();
}
