#include "ui/commun/style_calpenne.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>
#include <QTabBar>
#include <QTextEdit>
#include <algorithm>

#include "ui/commun/bouton.h"
#include "ui/commun/dessin_style.h"
#include "ui/commun/theme.h"

using namespace DessinStyle;

void StyleCalpenne::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractSpinBox*>(widget)) {
    if (widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
  }
  if (auto* texte = qobject_cast<QTextEdit*>(widget)) texte->setTabChangesFocus(true);
  if (auto* texte = qobject_cast<QPlainTextEdit*>(widget)) texte->setTabChangesFocus(true);
  // Hover is drawn, so these must be told of it.
  if (qobject_cast<QAbstractItemView*>(widget) || qobject_cast<QHeaderView*>(widget))
    widget->setAttribute(Qt::WA_Hover);
}

void StyleCalpenne::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                                  const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit:
      if (const auto* cadre = qstyleoption_cast<const QStyleOptionFrame*>(option);
          !cadre || cadre->lineWidth < 1)
        return;
      [[fallthrough]];
    case PE_FrameLineEdit:
      return Champ(*peintre, *option, widget);
    case PE_Frame:
      if (qobject_cast<const QTextEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget))
        return Champ(*peintre, *option, widget);
      return Contour(*peintre, *option);
    case PE_PanelButtonCommand:
      return Bouton(*peintre, *option, GenreDe(widget));
    case PE_PanelButtonTool:
      return Bouton(*peintre, *option,
                    option->state & State_AutoRaise ? TGenreBouton::Discret : TGenreBouton::Simple);
    case PE_FrameFocusRect:
      // A tab's ring stands around the tab, by the style sheet; here it would strike its text through. A
      // button's is its outline.
      if (!qobject_cast<const QTabBar*>(widget) && !qobject_cast<const QPushButton*>(widget))
        Foyer(*peintre, *option, widget);
      return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
      return Case(*peintre, *option);
    case PE_IndicatorRadioButton:
      return Choix(*peintre, *option);
    case PE_IndicatorBranch:
      if (option->state & State_Children)
        Fleche(*peintre, *option, option->rect, option->state & State_Open ? Qt::DownArrow : Qt::RightArrow);
      return;
    case PE_PanelItemViewRow:
    case PE_PanelItemViewItem:
      return LigneDeListe(*peintre, *option, widget, element == PE_PanelItemViewRow);
    case PE_IndicatorHeaderArrow:
      if (const auto* tete = qstyleoption_cast<const QStyleOptionHeader*>(option))
        Fleche(*peintre, *option, option->rect,
               tete->sortIndicator & QStyleOptionHeader::SortUp ? Qt::UpArrow : Qt::DownArrow);
      return;
    case PE_IndicatorArrowDown:
      return Fleche(*peintre, *option, option->rect, Qt::DownArrow);
    case PE_IndicatorArrowUp:
      return Fleche(*peintre, *option, option->rect, Qt::UpArrow);
    default:
      QProxyStyle::drawPrimitive(element, option, peintre, widget);
  }
}

void StyleCalpenne::drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                                const QWidget* widget) const {
  switch (element) {
    case CE_CheckBox:
      if (const auto* boite = qstyleoption_cast<const QStyleOptionButton*>(option);
          boite && boite->text.isEmpty())
        return CaseSeule(*peintre, *boite, widget);
      break;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
      return Tete(*peintre, *option);
    case CE_HeaderLabel:
      if (const auto* tete = qstyleoption_cast<const QStyleOptionHeader*>(option))
        return TexteDeTete(*peintre, *tete);
      break;
    default:
      break;
  }
  QProxyStyle::drawControl(element, option, peintre, widget);
}

void StyleCalpenne::drawComplexControl(ComplexControl element, const QStyleOptionComplex* option,
                                       QPainter* peintre, const QWidget* widget) const {
  switch (element) {
    case CC_ComboBox:
      if (const auto* liste = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        if (liste->editable)
          Champ(*peintre, *option, widget);
        else
          Bouton(*peintre, *option, TGenreBouton::Simple);
        const QRect place = proxy()->subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
        return Fleche(*peintre, *option, place, Qt::DownArrow);
      }
      break;
    case CC_SpinBox:
      Champ(*peintre, *option, widget);
      for (const auto& [quoi, sens] :
           {std::pair{SC_SpinBoxUp, Qt::UpArrow}, std::pair{SC_SpinBoxDown, Qt::DownArrow}})
        if (const QRect place = proxy()->subControlRect(element, option, quoi, widget); place.isValid())
          Fleche(*peintre, *option, place, sens, 3);
      return;
    default:
      break;
  }
  QProxyStyle::drawComplexControl(element, option, peintre, widget);
}

int StyleCalpenne::pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* widget) const {
  static constexpr std::pair<PixelMetric, int> mesures[] = {
      {PM_FocusFrameHMargin, 7},    {PM_FocusFrameVMargin, 2},        {PM_IndicatorWidth, 16},
      {PM_IndicatorHeight, 16},     {PM_ExclusiveIndicatorWidth, 16}, {PM_ExclusiveIndicatorHeight, 16},
      {PM_SmallIconSize, 16},       {PM_ButtonIconSize, 16},          {PM_ListViewIconSize, 16},
      {PM_TabBarIconSize, 16},      {PM_CheckBoxLabelSpacing, 7},     {PM_RadioButtonLabelSpacing, 7},
      {PM_HeaderMargin, 8},         {PM_HeaderMarkSize, 8},           {PM_LayoutHorizontalSpacing, 8},
      {PM_LayoutVerticalSpacing, 8}};
  const auto* connue = std::ranges::find(mesures, mesure, &std::pair<PixelMetric, int>::first);
  if (connue != std::end(mesures)) return Theme::Px(connue->second);
  if (mesure == PM_DefaultFrameWidth) return qobject_cast<const QAbstractItemView*>(widget) ? 1 : 2;
  // White space separates, and widgets stand in each other: only the window has a margin.
  if (mesure >= PM_LayoutLeftMargin && mesure <= PM_LayoutBottomMargin)
    return widget && widget->isWindow() ? Theme::Px(16) : 0;
  return QProxyStyle::pixelMetric(mesure, option, widget);
}

int StyleCalpenne::styleHint(StyleHint conseil, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* retour) const {
  switch (conseil) {
    case SH_EtchDisabledText:
    case SH_ComboBox_Popup:
    case SH_ItemView_ActivateItemOnSingleClick:
    case SH_DialogButtonBox_ButtonsHaveIcons:
      return 0;
    default:
      return QProxyStyle::styleHint(conseil, option, widget, retour);
  }
}

QSize StyleCalpenne::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& taille,
                                      const QWidget* widget) const {
  static constexpr std::pair<ContentsType, int> moindres[] = {{CT_CheckBox, 24},
                                                              {CT_RadioButton, 24},
                                                              {CT_ToolButton, 26},
                                                              {CT_ItemViewItem, 25},
                                                              {CT_HeaderSection, 31}};
  if (type == CT_PushButton) {
    const TGenreBouton genre = GenreDe(widget);
    const bool texte = !static_cast<const QStyleOptionButton*>(option)->text.isEmpty();
    const bool discret = genre == TGenreBouton::Discret || genre == TGenreBouton::Suppression;
    const int marge = Theme::Px(!texte ? 6 : discret ? 8 : 12);
    const QSize voulue(taille.width() + 2 * marge,
                       std::max(Theme::Px(genre == TGenreBouton::Principal ? 34 : 30), taille.height()));
    return Theme::EstTactile() ? voulue.expandedTo({2 * Theme::CoteDoigt(), Theme::CoteDoigt()}) : voulue;
  }
  const QSize voulue = QProxyStyle::sizeFromContents(type, option, taille, widget);
  if (type == CT_LineEdit || type == CT_ComboBox || type == CT_SpinBox)
    return {voulue.width(), std::max(Theme::Px(28), taille.height() + 6)};
  const auto* moindre = std::ranges::find(moindres, type, &std::pair<ContentsType, int>::first);
  return moindre == std::end(moindres) ? voulue : voulue.expandedTo({0, Theme::Px(moindre->second)});
}

QRect StyleCalpenne::subElementRect(SubElement element, const QStyleOption* option,
                                    const QWidget* widget) const {
  switch (element) {
    case SE_HeaderArrow:
    case SE_HeaderLabel: {
      // Fusion keeps twice the room that the arrow takes: the title of a narrow column would be cut.
      const int marge = pixelMetric(PM_HeaderMargin, option, widget);
      const int fleche = pixelMetric(PM_HeaderMarkSize, option, widget);
      QRect place = option->rect.adjusted(marge, 0, -marge, 0);
      const auto* tete = qstyleoption_cast<const QStyleOptionHeader*>(option);
      if (element == SE_HeaderArrow)
        place.setLeft(place.right() - fleche + 1);
      else if (tete && tete->sortIndicator != QStyleOptionHeader::None)
        place.setRight(place.right() - fleche - 2);
      return visualRect(option->direction, option->rect, place);
    }
    case SE_ItemViewItemText: {  // the box before it has its margins already
      const QRect place = QProxyStyle::subElementRect(element, option, widget);
      const auto* cellule = qstyleoption_cast<const QStyleOptionViewItem*>(option);
      const bool coche =
          cellule != nullptr && cellule->features.testFlag(QStyleOptionViewItem::HasCheckIndicator);
      return coche ? place.adjusted(-pixelMetric(PM_FocusFrameHMargin, option, widget), 0, 0, 0) : place;
    }
    case SE_LineEditContents:
      return QProxyStyle::subElementRect(element, option, widget).adjusted(2, 0, -2, 0);
    default:
      return QProxyStyle::subElementRect(element, option, widget);
  }
}
