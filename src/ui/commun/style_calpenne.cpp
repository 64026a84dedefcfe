#include "ui/commun/style_calpenne.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOption>
#include <QTextEdit>

#include "ui/commun/bouton.h"
#include "ui/commun/dessin_style.h"
#include "ui/commun/theme.h"

using namespace DessinStyle;

namespace {

bool EstTexteLong(const QWidget* widget) {
  return qobject_cast<const QTextEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget);
}

TGenreBouton Genre(const QWidget* bouton) { return bouton ? GenreDe(*bouton) : TGenreBouton::Simple; }

}  // namespace

void StyleCalpenne::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractSpinBox*>(widget)) {
    if (widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
  }
  if (auto* texte = qobject_cast<QTextEdit*>(widget)) texte->setTabChangesFocus(true);
  if (auto* texte = qobject_cast<QPlainTextEdit*>(widget)) texte->setTabChangesFocus(true);
  // Qt asks for room for a text beside the size of the style.
  if (qobject_cast<QProgressBar*>(widget)) widget->setFixedHeight(Theme::Px(8));
  // Hover is drawn, so these must be told of it.
  if (qobject_cast<QAbstractItemView*>(widget) || qobject_cast<QHeaderView*>(widget))
    widget->setAttribute(Qt::WA_Hover);
}

void StyleCalpenne::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* peintre,
                                  const QWidget* widget) const {
  switch (element) {
    case PE_PanelLineEdit:
      if (const auto* cadre = qstyleoption_cast<const QStyleOptionFrame*>(option);
          cadre && cadre->lineWidth > 0)
        Champ(*peintre, *option, widget);
      return;
    case PE_FrameLineEdit:
      return Champ(*peintre, *option, widget);
    case PE_Frame:
      if (EstTexteLong(widget)) return Champ(*peintre, *option, widget);
      return Contour(*peintre, option->rect, Theme::Ligne());
    case PE_PanelButtonCommand:
      return Bouton(*peintre, *option, Genre(widget));
    case PE_PanelButtonTool:
      return Outil(*peintre, *option);
    case PE_FrameFocusRect:
      return Foyer(*peintre, *option, widget);
    case PE_IndicatorCheckBox:
      return Case(*peintre, *option, widget);
    case PE_IndicatorItemViewItemCheck:
      return Case(*peintre, *option, nullptr);
    case PE_IndicatorRadioButton:
      return Choix(*peintre, *option, widget);
    case PE_IndicatorBranch:
      if (option->state & State_Children)
        Fleche(*peintre, option->rect, option->state & State_Open ? Qt::DownArrow : Qt::RightArrow,
               Theme::Secondaire(), 4);
      return;
    case PE_PanelItemViewRow:
    case PE_PanelItemViewItem:
      return LigneDeListe(*peintre, *option, widget, element == PE_PanelItemViewRow);
    case PE_IndicatorHeaderArrow:
      if (const auto* tete = qstyleoption_cast<const QStyleOptionHeader*>(option))
        Fleche(*peintre, option->rect,
               tete->sortIndicator & QStyleOptionHeader::SortUp ? Qt::UpArrow : Qt::DownArrow,
               Theme::Secondaire(), 4);
      return;
    case PE_IndicatorArrowDown:
    case PE_IndicatorArrowUp:
      return Fleche(*peintre, option->rect, element == PE_IndicatorArrowUp ? Qt::UpArrow : Qt::DownArrow,
                    option->state & State_Enabled ? Theme::Secondaire() : CouleurTexte(*option), 4);
    default:
      QProxyStyle::drawPrimitive(element, option, peintre, widget);
  }
}

void StyleCalpenne::drawControl(ControlElement element, const QStyleOption* option, QPainter* peintre,
                                const QWidget* widget) const {
  switch (element) {
    case CE_PushButtonLabel:
      if (const auto* bouton = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        QStyleOptionButton copie = *bouton;
        if (Genre(widget) == TGenreBouton::Principal && option->state & State_Enabled)
          copie.palette.setColor(QPalette::ButtonText, Theme::Couleur(TRole::SurAccent));
        return QProxyStyle::drawControl(element, &copie, peintre, widget);
      }
      break;
    case CE_ItemViewItem:
      if (const auto* cellule = qstyleoption_cast<const QStyleOptionViewItem*>(option)) {
        QStyleOptionViewItem copie = *cellule;
        copie.palette.setColor(QPalette::HighlightedText, Theme::SurSelection());
        copie.palette.setColor(QPalette::Disabled, QPalette::HighlightedText,
                               copie.palette.color(QPalette::Disabled, QPalette::Text));
        return QProxyStyle::drawControl(element, &copie, peintre, widget);
      }
      break;
    case CE_CheckBox:
      if (const auto* boite = qstyleoption_cast<const QStyleOptionButton*>(option);
          boite && boite->text.isEmpty())
        return CaseSeule(*peintre, *boite, widget);
      break;
    case CE_MenuItem:
      if (const auto* entree = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
          entree && entree->menuItemType == QStyleOptionMenuItem::Separator && entree->text.isEmpty()) {
        peintre->fillRect(QRect(option->rect.x(), option->rect.center().y(), option->rect.width(), 1),
                          Theme::Ligne());
        return;
      }
      break;
    case CE_HeaderSection:
      return Tete(*peintre, *option);
    case CE_HeaderEmptyArea:
      return Tete(*peintre, *option);
    case CE_HeaderLabel:
      if (const auto* tete = qstyleoption_cast<const QStyleOptionHeader*>(option))
        return TexteDeTete(*peintre, *tete);
      break;
    case CE_ProgressBarGroove:
      // On the sheet of a long work the hairline's colour would not be seen.
      return Barre(*peintre, option->rect,
                   widget && widget->property("surSelection").toBool() ? option->palette.color(QPalette::Base)
                                                                       : Theme::Ligne());
    case CE_ProgressBarContents:
      if (const auto* barre = qstyleoption_cast<const QStyleOptionProgressBar*>(option))
        return Progression(*peintre, *barre);
      break;
    case CE_ProgressBarLabel:
      return;
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
          ListeFermee(*peintre, *option);
        const QRect place = proxy()->subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
        return Fleche(*peintre, place, Qt::DownArrow,
                      option->state & State_Enabled ? Theme::Secondaire() : CouleurTexte(*option), 4);
      }
      break;
    case CC_SpinBox:
      if (const auto* nombre = qstyleoption_cast<const QStyleOptionSpinBox*>(option)) {
        Champ(*peintre, *option, widget);
        if (nombre->buttonSymbols == QAbstractSpinBox::NoButtons) return;
        const QRect haut = proxy()->subControlRect(CC_SpinBox, option, SC_SpinBoxUp, widget);
        const QRect bas = proxy()->subControlRect(CC_SpinBox, option, SC_SpinBoxDown, widget);
        Fleche(*peintre, haut, Qt::UpArrow, CouleurTexte(*option), 3);
        return Fleche(*peintre, bas, Qt::DownArrow, CouleurTexte(*option), 3);
      }
      break;
    case CC_ScrollBar:
      if (const auto* barre = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
        const QRect curseur = proxy()->subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget);
        return Defilement(*peintre, *barre, curseur);
      }
      break;
    default:
      break;
  }
  QProxyStyle::drawComplexControl(element, option, peintre, widget);
}

int StyleCalpenne::pixelMetric(PixelMetric mesure, const QStyleOption* option, const QWidget* widget) const {
  switch (mesure) {
    case PM_FocusFrameHMargin:
      return Theme::Px(7);
    case PM_FocusFrameVMargin:
      return Theme::Px(2);
    case PM_ScrollBarExtent:
      return Theme::Px(12);
    case PM_ScrollBarSliderMin:
      return Theme::Px(32);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
    case PM_TabBarIconSize:
      return Theme::Px(16);
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
      return Theme::Px(7);
    case PM_HeaderMargin:
      return Theme::Px(8);
    case PM_HeaderMarkSize:
      return Theme::Px(8);
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return Theme::Px(8);
    case PM_LayoutLeftMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutBottomMargin:
      // White space separates, and widgets stand in each other: only the window has a margin.
      return widget && widget->isWindow() ? Theme::Px(16) : 0;
    case PM_DefaultFrameWidth:
      if (qobject_cast<const QAbstractItemView*>(widget)) return 1;
      return 2;
    case PM_ScrollView_ScrollBarSpacing:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_ScrollView_ScrollBarOverlap:
      return 0;
    default:
      return QProxyStyle::pixelMetric(mesure, option, widget);
  }
}

int StyleCalpenne::styleHint(StyleHint conseil, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* retour) const {
  switch (conseil) {
    case SH_EtchDisabledText:
    case SH_ComboBox_Popup:
    case SH_ItemView_ActivateItemOnSingleClick:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_UnderlineShortcut:
      // Mnemonics show with the Alt key only where the platform does so by itself.
      return conseil == SH_UnderlineShortcut ? QProxyStyle::styleHint(conseil, option, widget, retour) : 0;
    case SH_ItemView_ShowDecorationSelected:
    case SH_ScrollView_FrameOnlyAroundContents:
      return conseil == SH_ItemView_ShowDecorationSelected;
    default:
      return QProxyStyle::styleHint(conseil, option, widget, retour);
  }
}

QSize StyleCalpenne::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& taille,
                                      const QWidget* widget) const {
  QSize voulue = QProxyStyle::sizeFromContents(type, option, taille, widget);
  const auto hauteur = [&voulue](int longueur) {
    voulue.setHeight(std::max(voulue.height(), Theme::Px(longueur)));
  };
  switch (type) {
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_SpinBox:
      voulue.setHeight(std::max(Theme::Px(28), taille.height() + 6));
      break;
    case CT_PushButton: {
      const bool texte = !static_cast<const QStyleOptionButton*>(option)->text.isEmpty();
      const bool discret =
          Genre(widget) == TGenreBouton::Discret || Genre(widget) == TGenreBouton::Suppression;
      const int marge = Theme::Px(!texte ? 6 : discret ? 8 : 12);
      voulue = {taille.width() + 2 * marge,
                std::max(Theme::Px(Genre(widget) == TGenreBouton::Principal ? 34 : 30), taille.height())};
      break;
    }
    case CT_CheckBox:
    case CT_RadioButton:
      hauteur(24);
      break;
    case CT_ToolButton:
      hauteur(26);
      break;
    case CT_ItemViewItem:
      hauteur(25);
      break;
    case CT_HeaderSection:
      voulue.setHeight(std::max(Theme::Px(31), voulue.height()));
      break;
    case CT_ProgressBar:
      voulue.setHeight(Theme::Px(8));
      break;
    default:
      break;
  }
  return voulue;
}

QRect StyleCalpenne::subElementRect(SubElement element, const QStyleOption* option,
                                    const QWidget* widget) const {
  switch (element) {
    case SE_ProgressBarGroove:
    case SE_ProgressBarContents:
      return option->rect;
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
    case SE_LineEditContents:
      return QProxyStyle::subElementRect(element, option, widget).adjusted(2, 0, -2, 0);
    default:
      return QProxyStyle::subElementRect(element, option, widget);
  }
}
