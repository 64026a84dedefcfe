#include "ui/principal/panneau_eleves.h"

#include <QAction>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QTreeView>

#include "screens/principal/frm_main.h"
#include "ui/commun/etiquette.h"
#include "ui/principal/modele_arbre.h"

using namespace Qt::StringLiterals;

namespace {

/// Name, and on the right the count of a class or the word for a pupil struck off.
class DelegueEleves : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    return {Theme::Px(60), Theme::Px(25)};
  }

  void paint(QPainter* peintre, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem vue = option;
    initStyleOption(&vue, index);
    const QString texte = vue.text;
    vue.text.clear();
    vue.state.setFlag(QStyle::State_HasFocus, false);
    vue.widget->style()->drawControl(QStyle::CE_ItemViewItem, &vue, peintre, vue.widget);
    if (option.state.testFlag(QStyle::State_HasFocus)) {  // around the row, as its ground is
      QStyleOptionFocusRect foyer;
      foyer.QStyleOption::operator=(option);
      foyer.rect.setLeft(0);
      vue.widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &foyer, peintre, vue.widget);
    }

    const bool actif = option.state.testFlag(QStyle::State_Enabled);
    const auto groupe = actif ? QPalette::Active : QPalette::Disabled;
    peintre->save();
    QFont police = option.font;
    const QString droite = Droite(index);
    QRect place = Place(option);
    if (!droite.isEmpty()) {
      const QFont petite = Theme::Petite();
      peintre->setFont(petite);
      peintre->setPen(actif ? Theme::Couleur(TRole::Secondaire)
                            : option.palette.color(groupe, QPalette::Text));
      peintre->drawText(place, Qt::AlignRight | Qt::AlignVCenter, droite);
      place.setRight(place.right() - QFontMetrics(petite).horizontalAdvance(droite) - Theme::Px(8));
    }
    if (!index.parent().isValid() && index.model()->rowCount(index.model()->index(0, 0, index)) > 0)
      police.setBold(true);
    police.setStrikeOut(EstBarre(index));
    peintre->setFont(police);
    peintre->setPen(EstBarre(index) && actif ? Theme::Couleur(TRole::Secondaire)
                                             : option.palette.color(groupe, QPalette::Text));
    peintre->drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                      QFontMetrics(police).elidedText(texte, Qt::ElideRight, place.width()));
    peintre->restore();
  }

  bool helpEvent(QHelpEvent* aide, QAbstractItemView* vue, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const QString texte = index.data().toString();
    const QString droite = Droite(index);
    int place = Place(option).width();
    if (!droite.isEmpty()) place -= QFontMetrics(Theme::Petite()).horizontalAdvance(droite) + Theme::Px(8);
    const bool coupe = QFontMetrics(option.font).horizontalAdvance(texte) > place;
    QToolTip::showText(aide->globalPos(), coupe ? texte : QString(), vue, {},
                       vue->viewport()->toolTipDuration());
    return true;
  }

 private:
  static bool EstBarre(const QModelIndex& index) {
    return index.data(ModeleArbre::kMarque).toInt() == static_cast<int>(TMarqueNoeud::Barree);
  }
  static QString Droite(const QModelIndex& index) {
    return EstBarre(index) ? u"radié"_s : index.data(ModeleArbre::kCompte).toString();
  }
  static QRect Place(const QStyleOptionViewItem& option) {
    return option.rect.adjusted(Theme::Px(2), 0, -Theme::Px(8), 0);
  }
};

}  // namespace

PanneauEleves::PanneauEleves(TFrmMain& form, QWidget* parent)
    : QWidget(parent), form_(form), modele_(new ModeleArbre(form.Arbre, this)) {
  CreerRecherche();
  CreerTrouves();
  CreerArbre();
  vide_ = new Etiquette({}, TRole::Texte, &Theme::Gras);
  phrase_ = new Etiquette({}, TRole::Secondaire);
  sansEleve_ = new QWidget;
  sansEleve_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(sansEleve_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& position) { MontrerMenu(*sansEleve_, position); });
  auto* textes = new QVBoxLayout(sansEleve_);
  textes->setContentsMargins(0, Theme::Px(24), 0, 0);
  textes->setSpacing(Theme::Px(8));
  for (Etiquette* texte : {vide_, phrase_}) {
    texte->setWordWrap(true);
    texte->setAlignment(Qt::AlignHCenter);
    textes->addWidget(texte);
  }
  textes->addStretch();
  compte_ = new Etiquette({}, TRole::Secondaire, &Theme::Petite);
  compte_->setWordWrap(true);

  auto* colonne = new QVBoxLayout(this);
  colonne->setContentsMargins(Theme::Px(12), Theme::Px(12), Theme::Px(12), Theme::Px(8));
  colonne->setSpacing(Theme::Px(8));
  colonne->addWidget(recherche_);
  colonne->addWidget(trouves_);
  colonne->addWidget(arbre_, 1);
  colonne->addWidget(sansEleve_, 1);
  colonne->addWidget(compte_);
  setFixedWidth(Theme::Px(248));

  liens_ += form_.Arbre.SurChangement.Suivre([this] { Relire(); });
  liens_ += form_.SurTrouves.Suivre([this] { MontrerTrouves(); });
  Relire();
}

void PanneauEleves::CreerRecherche() {
  recherche_ = new QLineEdit;
  recherche_->setPlaceholderText(u"Rechercher (F3)"_s);
  recherche_->setAccessibleName(u"Rechercher un élève"_s);
  recherche_->setToolTip(u"Nom, responsable ou matricule (F3) ; Entrée : élève suivant ; Début : effacer"_s);
  recherche_->addAction(Theme::Icone(u"edit-find"_s, TRole::Secondaire), QLineEdit::LeadingPosition);
  suivant_ =
      recherche_->addAction(Theme::Icone(u"go-down"_s, TRole::Secondaire), QLineEdit::TrailingPosition);
  suivant_->setText(u"Élève suivant"_s);
  suivant_->setToolTip(u"Élève suivant (Entrée)"_s);
  recherche_->installEventFilter(this);
  connect(suivant_, &QAction::triggered, this, [this] { form_.btnRechercheClick(); });
  connect(recherche_, &QLineEdit::textEdited, this, &PanneauEleves::Texter);
}

// Those that the second search found, between field and tree while there are several.
void PanneauEleves::CreerTrouves() {
  trouves_ = new QListWidget;
  trouves_->setAccessibleName(u"Élèves trouvés"_s);
  trouves_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  trouves_->hide();
  connect(trouves_, &QListWidget::itemActivated, this,
          [this](const QListWidgetItem* choisi) { form_.ChoisirTrouve(trouves_->row(choisi)); });
  connect(trouves_, &QListWidget::itemClicked, this,
          [this](const QListWidgetItem* choisi) { form_.ChoisirTrouve(trouves_->row(choisi)); });
}

void PanneauEleves::CreerArbre() {
  arbre_ = new QTreeView;
  arbre_->setModel(modele_);
  arbre_->setItemDelegate(new DelegueEleves(arbre_));
  arbre_->setHeaderHidden(true);
  arbre_->setUniformRowHeights(true);
  arbre_->setIndentation(Theme::Px(15));
  arbre_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  arbre_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  arbre_->setContextMenuPolicy(Qt::CustomContextMenu);
  arbre_->setAccessibleName(u"Classes et élèves"_s);
  arbre_->setTabKeyNavigation(false);
  arbre_->header()->setStretchLastSection(true);
  connect(arbre_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& choisi) {
            const bool ici = arbre_->hasFocus();
            form_.ChoisirNoeud(modele_->Noeud(choisi));
            // A text that is refused calls the hand to its field, which is another pupil's by now.
            if (ici) arbre_->setFocus(Qt::OtherFocusReason);
          });
  connect(arbre_, &QTreeView::collapsed, this, [this](const QModelIndex& index) { NoterPli(index, false); });
  connect(arbre_, &QTreeView::expanded, this, [this](const QModelIndex& index) { NoterPli(index, true); });
  connect(arbre_, &QWidget::customContextMenuRequested, this, [this](const QPoint& position) {
    const QModelIndex sous = arbre_->indexAt(position);
    if (sous.isValid()) arbre_->setCurrentIndex(sous);
    MontrerMenu(*arbre_->viewport(), position);
  });
}

void PanneauEleves::Relire() {
  const QSignalBlocker muet(arbre_->selectionModel());
  modele_->Relire();
  for (int i = 0; i < modele_->rowCount(); ++i) Deplier(modele_->index(i, 0));
  SuivreSelection();
  Actualiser();
}

// Sites and the classes that the user had opened.
void PanneauEleves::Deplier(const QModelIndex& index) {
  const QString chemin = ModeleArbre::Chemin(*modele_->Noeud(index));
  const QModelIndex premier = modele_->index(0, 0, index);
  const bool site = modele_->rowCount(premier) > 0;
  if (site ? !fermes_.contains(chemin) : ouverts_.contains(chemin)) arbre_->expand(index);
  if (!site) return;
  for (int i = 0; i < modele_->rowCount(index); ++i) Deplier(modele_->index(i, 0, index));
}

void PanneauEleves::NoterPli(const QModelIndex& index, bool ouvert) {
  const QString chemin = ModeleArbre::Chemin(*modele_->Noeud(index));
  ouvert ? (void)ouverts_.insert(chemin) : (void)ouverts_.remove(chemin);
  ouvert ? (void)fermes_.remove(chemin) : (void)fermes_.insert(chemin);
}

void PanneauEleves::SuivreSelection() {
  const QModelIndex index = modele_->Index(form_.Arbre.Selection());
  if (index != arbre_->currentIndex()) arbre_->setCurrentIndex(index);
  if (index.isValid()) arbre_->scrollTo(index);
}

void PanneauEleves::Actualiser() {
  const auto [titre, phrase, bouton] = form_.ArbreVide();
  const bool vide = !titre.isEmpty();
  const bool actif = form_.EstRelie() && !form_.EnTravail();
  recherche_->setEnabled(actif && !vide);
  arbre_->setVisible(!vide);
  arbre_->setEnabled(actif);
  sansEleve_->setVisible(vide);
  compte_->setVisible(form_.EstRelie() && !vide);
  vide_->setText(titre);
  phrase_->setText(phrase);
  compte_->setText(form_.TexteNombres());
}

// Typed or pasted: what the search does not take leaves the field.
void PanneauEleves::Texter(const QString& texte) {
  const QString admis = form_.edSearchSaisie(texte);
  if (admis == texte) return;
  const auto apres = recherche_->cursorPosition() - (texte.size() - admis.size());
  recherche_->setText(admis);
  recherche_->setCursorPosition(static_cast<int>(apres));
}

void PanneauEleves::MontrerTrouves() {
  const auto& trouves = form_.Trouves();
  trouves_->clear();
  for (const TEleve* eleve : trouves)
    trouves_->addItem(eleve->NomComplet() % u"  ·  " % eleve->LibelleClasse());
  trouves_->setVisible(!trouves.empty());
  constexpr int kLignes = 8;
  const int lignes = std::min(static_cast<int>(trouves.size()), kLignes);
  trouves_->setFixedHeight(lignes * trouves_->sizeHintForRow(0) + 2 * trouves_->frameWidth());
}

bool PanneauEleves::ToucheRecherche(int touche) {
  switch (touche) {
    case Qt::Key_Home:
    case Qt::Key_Escape:
      recherche_->clear();
      form_.edSearchChange({});
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      form_.btnRechercheClick();
      return true;
    case Qt::Key_Down:
      if (trouves_->count() > 0) trouves_->setCurrentRow(0);
      (trouves_->count() > 0 ? static_cast<QWidget*>(trouves_) : arbre_)->setFocus(Qt::OtherFocusReason);
      return true;
    default:
      return false;
  }
}

bool PanneauEleves::eventFilter(QObject* objet, QEvent* evenement) {
  if (objet == recherche_ && evenement->type() == QEvent::KeyPress) {
    const auto* touche = static_cast<QKeyEvent*>(evenement);
    const bool nue = (touche->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (nue && ToucheRecherche(touche->key())) return true;
  }
  return QWidget::eventFilter(objet, evenement);
}

void PanneauEleves::AllerALaRecherche() {
  if (!recherche_->isEnabled()) return;
  recherche_->setFocus(Qt::ShortcutFocusReason);
  recherche_->selectAll();
}

void PanneauEleves::MontrerMenu(const QWidget& ou, const QPoint& position) {
  QMenu menu(this);
  QAction* ajouter = menu.addAction(Theme::Icone(u"list-add"_s), u"&Ajouter un professeur..."_s);
  QAction* supprimer =
      menu.addAction(Theme::Icone(u"edit-delete"_s, TRole::Erreur), u"&Supprimer ce professeur"_s);
  ajouter->setEnabled(form_.PeutAjouterProfesseur());
  supprimer->setEnabled(form_.PeutSupprimerProfesseur());
  const QAction* choisi = menu.exec(ou.mapToGlobal(position));
  if (choisi == ajouter) form_.Ajouterunprofesseur1Click();
  if (choisi == supprimer) form_.Supprimerunprofesseur1Click();
}
