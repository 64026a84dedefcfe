#include "ui/commun/vue_grille.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QToolTip>
#include <cmath>

#include "core/fichiers.h"
#include "core/nom_fichier.h"
#include "screens/commun/nom_de_liste.h"
#include "ui/commun/champ_filtre.h"
#include "ui/commun/delegue_grille.h"
#include "ui/commun/menu_grille.h"
#include "ui/commun/modele_grille.h"
#include "ui/commun/tete_de_liste.h"
#include "ui/commun/theme.h"
#include "ui/principal/dialogues_qt.h"

using namespace Qt::StringLiterals;

namespace {

/// Sets a flag while it lives.
class Pendant {
 public:
  explicit Pendant(bool& drapeau) : drapeau_(drapeau), avant_(std::exchange(drapeau, true)) {}
  ~Pendant() { drapeau_ = avant_; }
  Pendant(const Pendant&) = delete;
  Pendant& operator=(const Pendant&) = delete;

 private:
  bool& drapeau_;
  bool avant_;
};

}  // namespace

VueGrille::VueGrille(TGrille& grille, const QString& nom, const QString& ecran, QWidget* parent)
    : QTreeView(parent),
      grille_(grille),
      ecran_(ecran),
      modele_(new ModeleGrille(grille, this)),
      filtre_(new FiltreGrille(grille, *modele_, this)) {
  grille.Filtre.clear();  // of a view that is gone
  setAccessibleName(nom);
  setModel(filtre_);
  setItemDelegate(new DelegueGrille(*this));
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setExpandsOnDoubleClick(false);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollMode(ScrollPerPixel);
  setTabKeyNavigation(false);
  setTextElideMode(Qt::ElideRight);
  header()->setStretchLastSection(false);
  header()->setSectionsClickable(true);
  header()->setSortIndicatorShown(true);
  header()->setSortIndicatorClearable(true);
  header()->setSortIndicator(-1, Qt::AscendingOrder);
  header()->setFocusPolicy(Qt::NoFocus);
  setSortingEnabled(true);

  liens_ += grille.SurChangement.Suivre(
      [this](TGrille::TChangement changement) { SuivreGrille(changement.Ligne); });
  liens_ += grille.SurChoix.Suivre([this] { SuivreChoix(); });
  liens_ += grille.SurOrdre.Suivre([this](std::vector<int>& lignes) { lignes = LignesVues(); });
  PoserColonnes();
  RemettreGroupes();
  SuivreChoix();
  enCours_ = false;

  connect(modele_, &ModeleGrille::Cochee, this, &VueGrille::Cochee);
  connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
    if (!enCours_) grille_.Fermer(LigneDe(index), false);
  });
  connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
    if (!enCours_) grille_.Fermer(LigneDe(index), true);
  });
  connect(header(), &QHeaderView::sectionResized, this, [this](int colonne, int, int largeur) {
    if (enCours_ || colonne == ColonneSouple()) return;
    tracees_ = true;
    grille_.ChangerLargeur(colonne, static_cast<int>(std::lround(largeur * 96.0 / Theme::Px(96))));
    RetenirBientot();
  });
  connect(header(), &QHeaderView::sectionResized, this, &VueGrille::Abreger);
  SuivreTitres(*header());
  connect(header(), &QHeaderView::sectionMoved, this, &VueGrille::RetenirBientot);
  connect(header(), &QHeaderView::sortIndicatorChanged, this, &VueGrille::RetenirBientot);
  connect(header(), &QHeaderView::sortIndicatorChanged, this, [this] {
    placeElargie_ = -1;  // its arrow needs room beside its title
    RepartirPlusTard();
  });
}

VueGrille::~VueGrille() {
  if (aRetenir_) Retenir();
}

// Following the grid

QModelIndex VueGrille::IndexDe(int ligne) const { return filtre_->mapFromSource(modele_->Index(ligne)); }

int VueGrille::LigneDe(const QModelIndex& index) const { return modele_->Ligne(filtre_->mapToSource(index)); }

void VueGrille::SuivreGrille(int ligne) {
  const int hauteur = verticalScrollBar()->value();
  const int colonnes = header()->count();
  {
    const Pendant pendant(enCours_);
    modele_->Suivre(ligne);
    if (ligne < 0) {
      if (header()->count() != colonnes) PoserColonnes();
      RemettreGroupes();
    }
  }
  if (ligne < 0) {
    SuivreChoix();
    if (hauteur > 0) {
      executeDelayedItemsLayout();
      verticalScrollBar()->setValue(hauteur);
    }
    RepartirPlusTard();
  }
  emit Changee();
}

void VueGrille::SuivreChoix() {
  const Pendant pendant(enCours_);
  const QModelIndex voulu = IndexDe(grille_.LigneCourante());
  // A list that gets the focus makes its first row the current one without choosing it.
  if (voulu.isValid() && (voulu.siblingAtColumn(0) != currentIndex().siblingAtColumn(0) ||
                          !selectionModel()->isSelected(voulu))) {
    setCurrentIndex(voulu);
  } else if (!voulu.isValid() && currentIndex().isValid()) {
    setCurrentIndex({});
    clearSelection();
  }
  emit Choisie(grille_.LigneCourante());
}

void VueGrille::RemettreGroupes() {
  const Pendant pendant(enCours_);
  bool groupes = false;
  for (int rang = 0; rang < filtre_->rowCount(); ++rang) {
    const QModelIndex index = filtre_->index(rang, 0);
    const int ligne = LigneDe(index);
    if (!grille_.Ligne(ligne).Tete) continue;
    groupes = true;
    setExpanded(index, !grille_.Filtre.isEmpty() || !grille_.EstFerme(ligne));
  }
  setRootIsDecorated(groupes);
  setIndentation(groupes ? Theme::Px(15) : 0);
}

void VueGrille::currentChanged(const QModelIndex& courant, const QModelIndex& avant) {
  QTreeView::currentChanged(courant, avant);
  if (!enCours_) grille_.ChoisirLigne(LigneDe(courant));
}

// Filter

void VueGrille::Filtrer(ChampFiltre& champ) {
  champ_ = &champ;
  champ.DefinirSuite(this);
  connect(&champ, &QLineEdit::textChanged, this, [this](const QString& texte) {
    {
      const Pendant pendant(enCours_);
      grille_.Filtre = texte.trimmed();
      filtre_->Refiltrer();
      RemettreGroupes();
    }
    // A row out of sight is not one to work on.
    if (!IndexDe(grille_.LigneCourante()).isValid()) grille_.ChoisirLigne(-1);
    SuivreChoix();
    emit Changee();
  });
}

void VueGrille::CreerFiltre() {
  auto* champ = new ChampFiltre(u"Filtrer"_s, this);
  Filtrer(*champ);
  champ->resize(std::min(Theme::Px(200), width()), champ->sizeHint().height());
  champ->move(width() - champ->width(), 0);
  connect(champ, &QLineEdit::editingFinished, champ, [champ] { champ->setHidden(champ->text().isEmpty()); });
}

void VueGrille::AllerAuFiltre() {
  if (!champ_) CreerFiltre();
  champ_->show();
  champ_->setFocus(Qt::ShortcutFocusReason);
  champ_->selectAll();
}

// Copying

std::vector<int> VueGrille::LignesVues() const {
  std::vector<int> lignes;
  for (int sommet = 0; sommet < filtre_->rowCount(); ++sommet) {
    const QModelIndex index = filtre_->index(sommet, 0);
    lignes.push_back(LigneDe(index));
    for (int rang = 0; rang < filtre_->rowCount(index); ++rang)
      lignes.push_back(LigneDe(filtre_->index(rang, 0, index)));
  }
  return lignes;
}

std::vector<int> VueGrille::ColonnesVues() const {
  std::vector<int> colonnes;
  for (int rang = 0; rang < header()->count(); ++rang) colonnes.push_back(header()->logicalIndex(rang));
  return colonnes;
}

QString VueGrille::Copie(int ligne) const {
  QStringList textes;
  for (const int colonne : ColonnesVues()) textes += grille_.Texte(ligne, colonne);
  return textes.join(u'\t');
}

void VueGrille::CopierLigne() {
  if (grille_.LigneCourante() >= 0) QApplication::clipboard()->setText(Copie(grille_.LigneCourante()));
}

void VueGrille::CopierTout() {
  QStringList titres;
  for (const int colonne : ColonnesVues()) titres += grille_.Colonne(colonne).Titre;
  QStringList lignes{titres.join(u'\t')};
  for (const int ligne : LignesVues()) lignes += Copie(ligne);
  QApplication::clipboard()->setText(lignes.join(u'\n'));
}

// The mark of the encoding is for spreadsheets, which would take the text for another one.
void VueGrille::Exporter() {
  const QStringList parties = QStringList{accessibleName()} + (precisions_ ? precisions_() : NomDeListe());
  const auto chemin =
      DialoguesQt().FichierAEnregistrer(u"Exporter la liste"_s, NomDeFichier(parties, u".csv"_s),
                                        u"Texte séparé par des points-virgules (*.csv)"_s);
  if (!chemin) return;
  const QByteArray octets = "\xEF\xBB\xBF" + EnCsv(grille_, LignesVues(), ColonnesVues()).toUtf8();
  EcrireFichier(*chemin, octets);
  DialoguesQt().Information(u"La liste est exportée :\n" % *chemin);
}

// Keyboard and mouse

void VueGrille::keyPressEvent(QKeyEvent* evenement) {
  const int ligne = grille_.LigneCourante();
  const bool tete = ligne >= 0 && grille_.Ligne(ligne).Tete;
  const Qt::KeyboardModifiers touches = evenement->modifiers() & ~Qt::KeypadModifier;
  const int touche = evenement->key();
  if (touche == Qt::Key_C && touches == Qt::ControlModifier) return CopierLigne();
  if (touche == Qt::Key_C && touches == (Qt::ControlModifier | Qt::ShiftModifier)) return CopierTout();
  if (touche == Qt::Key_F && touches == Qt::ControlModifier) return AllerAuFiltre();
  if (touches == Qt::NoModifier && ligne >= 0) {
    const bool entree = touche == Qt::Key_Return || touche == Qt::Key_Enter;
    const QModelIndex index = IndexDe(ligne);
    if (tete && (entree || touche == Qt::Key_Space)) return setExpanded(index, !isExpanded(index));
    if (touche == Qt::Key_Space && grille_.CasesACocher) {
      modele_->setData(modele_->Index(ligne), grille_.Ligne(ligne).Coche ? Qt::Unchecked : Qt::Checked,
                       Qt::CheckStateRole);
      return;
    }
    if (entree && isSignalConnected(QMetaMethod::fromSignal(&VueGrille::Activee))) return emit Activee(ligne);
    if (touche == Qt::Key_Delete && !tete &&
        isSignalConnected(QMetaMethod::fromSignal(&VueGrille::Suppression)))
      return emit Suppression(ligne);
  }
  QTreeView::keyPressEvent(evenement);
}

void VueGrille::contextMenuEvent(QContextMenuEvent* evenement) {
  QMenu menu(this);
  RemplirMenu(menu, *this);
  menu.exec(evenement->globalPos());
}

void VueGrille::mouseDoubleClickEvent(QMouseEvent* evenement) {
  const QModelIndex index = indexAt(evenement->position().toPoint());
  const int ligne = LigneDe(index);
  if (evenement->button() != Qt::LeftButton || ligne < 0) return QTreeView::mouseDoubleClickEvent(evenement);
  if (grille_.Ligne(ligne).Tete)
    setExpanded(index.siblingAtColumn(0), !isExpanded(index.siblingAtColumn(0)));
  else
    emit Activee(ligne);
}

bool VueGrille::viewportEvent(QEvent* evenement) {
  if (evenement->type() != QEvent::ToolTip) return QTreeView::viewportEvent(evenement);
  const auto* aide = static_cast<QHelpEvent*>(evenement);
  const QModelIndex index = indexAt(aide->pos());
  const bool coupe = index.isValid() && sizeHintForIndex(index).width() > visualRect(index).width();
  QToolTip::showText(aide->globalPos(), coupe ? index.data().toString() : QString(), viewport(),
                     visualRect(index), viewport()->toolTipDuration());
  return true;
}

// Looks

void VueGrille::drawRow(QPainter* peintre, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
  QTreeView::drawRow(peintre, option, index);
  const bool courant = selectionModel()->isSelected(index);
  const QRect ligne(0, option.rect.y(), std::max(header()->length(), viewport()->width()),
                    option.rect.height());
  if (!courant || !hasFocus()) {
    peintre->setPen(Theme::Couleur(TRole::Ligne));
    peintre->drawLine(ligne.bottomLeft(), ligne.bottomRight());
  }
}

void VueGrille::drawBranches(QPainter* peintre, const QRect& place, const QModelIndex& index) const {
  if (rootIsDecorated()) QTreeView::drawBranches(peintre, place, index);
}

void VueGrille::GarderBarre() { setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); }

void VueGrille::MontrerLigne(int ligne) {
  const QModelIndex index = IndexDe(ligne);
  if (index.isValid()) scrollTo(index);
}

int VueGrille::HauteurPour(int lignes) const {
  const int tete = std::max(header()->minimumHeight(), header()->sizeHint().height());
  return tete + lignes * DelegueGrille::HauteurLigne() + 2 * frameWidth();
}

void VueGrille::resizeEvent(QResizeEvent* evenement) {
  QTreeView::resizeEvent(evenement);
  if (evenement->size().width() != evenement->oldSize().width()) RepartirPlusTard();
}

void VueGrille::DefinirMoindre(int lignes) {
  rangees_ = lignes;
  setMinimumHeight(HauteurPour(lignes));
}

QSize VueGrille::sizeHint() const { return {QTreeView::sizeHint().width(), HauteurPour(rangees_)}; }

void VueGrille::changeEvent(QEvent* evenement) {
  QTreeView::changeEvent(evenement);
  if (evenement->type() == QEvent::FontChange) {
    const Pendant pendant(enCours_);
    for (int colonne = 0; colonne < grille_.NombreColonnes(); ++colonne)
      header()->resizeSection(colonne, Theme::Px(grille_.Colonne(colonne).Largeur));
    scheduleDelayedItemsLayout();
    RepartirPlusTard();
  }
}
