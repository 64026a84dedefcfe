#include "ui/commun/delegue_grille.h"

#include <QHeaderView>
#include <QPainter>

#include "ui/commun/modele_grille.h"
#include "ui/commun/theme.h"
#include "ui/commun/vue_grille.h"

namespace {

constexpr int kHauteurLigne = 27;

/// In high contrast the ground of a chosen row is the accent itself.
bool SelectionEnAccent() { return Theme::Couleur(TRole::Selection) == Theme::Couleur(TRole::Accent); }

bool EstEtat(const QModelIndex& index) { return index.data(Qt::DecorationRole).isValid(); }

}  // namespace

DelegueGrille::DelegueGrille(VueGrille& vue) : QStyledItemDelegate(&vue), vue_(vue) {}

int DelegueGrille::HauteurLigne() { return Theme::Px(kHauteurLigne); }

QSize DelegueGrille::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QStyle& style = *vue_.style();
  const int marges = 2 * (style.pixelMetric(QStyle::PM_FocusFrameHMargin, &option, &vue_) + 1);
  const QVariant police = index.data(Qt::FontRole);
  int largeur = marges + vue_.Mesures().Largeur(index.data().toString(),
                                                police.isValid() ? police.value<QFont>() : option.font);
  if (EstEtat(index)) largeur += Theme::Px(16) + 1;  // as PeindreEtat places it
  if (index.data(Qt::CheckStateRole).isValid())
    largeur +=
        style.pixelMetric(QStyle::PM_IndicatorWidth, &option, &vue_) + marges / 2 + 1;  // see StyleCalpenne
  return {largeur, std::max(HauteurLigne(), option.fontMetrics.height() + 2)};
}

void DelegueGrille::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (vue_.EstAbregee(index.column()))
    if (const QVariant court = index.data(kTexteCourt); court.isValid()) option->text = court.toString();
  const QVariant couleur = index.data(Qt::ForegroundRole);
  if (!couleur.isValid()) return;
  if (!option->state.testFlag(QStyle::State_Enabled))
    option->palette.setColor(QPalette::Text, vue_.palette().color(QPalette::Disabled, QPalette::Text));
  else if (!SelectionEnAccent())
    option->palette.setColor(QPalette::HighlightedText, couleur.value<QColor>());
}

void DelegueGrille::paint(QPainter* peintre, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  EstEtat(index) ? PeindreEtat(*peintre, option, index) : PeindreTexte(*peintre, option, index);
}

void DelegueGrille::PeindreEtat(QPainter& peintre, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
  vue_.style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &peintre, &vue_);
  const bool actif = option.state.testFlag(QStyle::State_Enabled);
  const int cote = Theme::Px(16), marge = Theme::Px(8);
  QRect place = option.rect.adjusted(marge, 0, -Theme::Px(4), -1);  // above the hairline, as the texts
  index.data(Qt::DecorationRole)
      .value<QIcon>()
      .paint(&peintre, QRect(place.x(), place.center().y() - cote / 2, cote, cote), Qt::AlignCenter,
             actif ? QIcon::Normal : QIcon::Disabled);
  place.adjust(cote + Theme::Px(4), 0, 0, -1);  // where the style puts the other texts of the row
  const bool surAccent = option.state.testFlag(QStyle::State_Selected) && SelectionEnAccent();
  peintre.setPen(surAccent ? Theme::Couleur(TRole::SurSelection)
                 : actif   ? index.data(Qt::ForegroundRole).value<QColor>()
                           : option.palette.color(QPalette::Disabled, QPalette::Text));
  peintre.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                   option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, place.width()));
}

/// A text that is cut goes on into the empty cell behind it; each of the two cells draws its part.
void DelegueGrille::PeindreTexte(QPainter& peintre, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  const QModelIndex avant = Voisine(index, -1);
  const QModelIndex texte = avant.isValid() && Deborde(option, avant) ? avant : index;
  if (!Deborde(option, texte)) return QStyledItemDelegate::paint(&peintre, option, index);
  QStyleOptionViewItem deux = option;
  deux.rect = vue_.visualRect(texte).united(vue_.visualRect(Voisine(texte, 1)));
  peintre.save();
  peintre.setClipRect(option.rect);
  QStyledItemDelegate::paint(&peintre, deux, texte);
  peintre.restore();
}

/// The cell that stands beside it, to the right with 1.
QModelIndex DelegueGrille::Voisine(const QModelIndex& index, int sens) const {
  const QHeaderView& tete = *vue_.header();
  const int colonne = tete.logicalIndex(tete.visualIndex(index.column()) + sens);
  return colonne < 0 ? QModelIndex() : index.siblingAtColumn(colonne);
}

bool DelegueGrille::Deborde(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QModelIndex apres = Voisine(index, 1);
  return apres.isValid() && apres.data().toString().isEmpty() && !EstEtat(index) &&
         index.data(Qt::TextAlignmentRole).value<Qt::Alignment>().testFlag(Qt::AlignLeft) &&
         sizeHint(option, index).width() > vue_.visualRect(index).width();
}
