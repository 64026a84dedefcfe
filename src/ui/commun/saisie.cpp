#include "ui/commun/saisie.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QRegularExpression>
#include <QTextCharFormat>
#include <QToolButton>
#include <QWidgetAction>

#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

/// What a reader of the house answers, or none when it refuses the text.
template <class Lecteur>
auto Essayer(Lecteur lire, const QString& texte) -> std::optional<decltype(lire(texte))> {
  try {
    return lire(texte);
  } catch (const EConvertError&) {
    return std::nullopt;
  }
}

std::optional<Currency> LireMontant(const QString& texte) {
  if (texte.trimmed().isEmpty()) return Currency();
  return Essayer(StrToCurr, texte);
}

std::optional<TDateTime> LireHeure(const QString& texte) {
  const QString simple = texte.trimmed();
  if (simple.isEmpty()) return 0.0;
  static const QRegularExpression kHeure(u"^(\\d{1,2})[:hH.]?(\\d{2})?$"_s);
  const QRegularExpressionMatch lue = kHeure.match(simple);
  if (!lue.hasMatch()) return std::nullopt;
  const QString minutes = lue.captured(2).isEmpty() ? u"00"_s : lue.captured(2);
  return Essayer(StrToTime, lue.captured(1) % u':' % minutes);
}

std::optional<TDateTime> LireDate(const QString& texte) {
  if (texte.trimmed().isEmpty()) return 0.0;
  return Essayer(StrToDate, texte);
}

/// Qt's own arrows are coloured, and its red of the week-end is not read on a dark ground.
void Habiller(QCalendarWidget& calendrier) {
  QTextCharFormat repos;
  repos.setForeground(Theme::Secondaire());
  calendrier.setWeekdayTextFormat(Qt::Saturday, repos);
  calendrier.setWeekdayTextFormat(Qt::Sunday, repos);
  const struct {
    const char *Bouton, *Icone;
  } fleches[] = {{"qt_calendar_prevmonth", "go-previous"}, {"qt_calendar_nextmonth", "go-next"}};
  for (const auto& [nom, icone] : fleches)
    if (auto* bouton = calendrier.findChild<QToolButton*>(QLatin1String(nom)))
      bouton->setIcon(Theme::Icone(QLatin1String(icone), TRole::SurAccent));
}

}  // namespace

Saisie::Saisie(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::editingFinished, this, &Saisie::Terminer);
  connect(this, &QLineEdit::textEdited, this, [this] { MarquerFaute(*this, false); });
}

bool Saisie::EstValide() const { return MettreEnForme(text()).has_value(); }

void Saisie::Montrer(const QString& texte) {
  setText(texte);
  avant_ = texte;
  MarquerFaute(*this, false);
}

void Saisie::Terminer() {
  const std::optional<QString> forme = MettreEnForme(text());
  // A text that can be read may still have been refused: typing takes that fault away.
  if (!forme) MarquerFaute(*this, true);
  if (forme && *forme != text()) setText(*forme);
  if (text() == avant_) return;
  avant_ = text();
  emit Saisi();
}

void Saisie::focusInEvent(QFocusEvent* evenement) {
  QLineEdit::focusInEvent(evenement);
  if (evenement->reason() == Qt::ShortcutFocusReason || evenement->reason() == Qt::OtherFocusReason)
    selectAll();
}

SaisieMontant::SaisieMontant(QWidget* parent) : Saisie(parent) { setAlignment(Qt::AlignRight); }

void SaisieMontant::DefinirMontant(Currency montant) { Montrer(FormatDeuxDecimales(montant)); }

std::optional<Currency> SaisieMontant::Montant() const { return LireMontant(text()); }

std::optional<QString> SaisieMontant::MettreEnForme(const QString& texte) const {
  const std::optional<Currency> montant = LireMontant(texte);
  if (!montant) return std::nullopt;
  return texte.trimmed().isEmpty() ? QString() : FormatDeuxDecimales(*montant);
}

SaisieHeure::SaisieHeure(QWidget* parent) : Saisie(parent) { setPlaceholderText(u"hh:mm"_s); }

void SaisieHeure::DefinirHeure(TDateTime heure) { Montrer(FormatHeureCourte(heure)); }

std::optional<TDateTime> SaisieHeure::Heure() const { return LireHeure(text()); }

std::optional<QString> SaisieHeure::MettreEnForme(const QString& texte) const {
  const std::optional<TDateTime> heure = LireHeure(texte);
  if (!heure) return std::nullopt;
  return texte.trimmed().isEmpty() ? QString() : HeureVersQt(*heure).toString(u"hh:mm"_s);
}

SaisieDate::SaisieDate(QWidget* parent) : Saisie(parent), fleche_(new QToolButton(this)) {
  setPlaceholderText(u"jj/mm/aaaa"_s);
  fleche_->setArrowType(Qt::DownArrow);
  fleche_->setAutoRaise(true);
  fleche_->setFocusPolicy(Qt::NoFocus);
  fleche_->setCursor(Qt::ArrowCursor);
  fleche_->setToolTip(u"Choisir dans le calendrier (F4)"_s);
  fleche_->setAccessibleName(u"Choisir dans le calendrier"_s);
  connect(fleche_, &QToolButton::clicked, this, &SaisieDate::OuvrirCalendrier);
  PlacerFleche();
}

void SaisieDate::DefinirDate(TDateTime date) { Montrer(FormatDate(date)); }

std::optional<TDateTime> SaisieDate::Date() const { return LireDate(text()); }

std::optional<QString> SaisieDate::MettreEnForme(const QString& texte) const {
  const std::optional<TDateTime> date = LireDate(texte);
  return date ? std::optional(FormatDate(*date)) : std::nullopt;
}

void SaisieDate::MontrerFleche(bool montrer) {
  fleche_->setVisible(montrer);
  PlacerFleche();
}

void SaisieDate::PlacerFleche() {
  // Before its first layout a widget is 480 high, and the margin counts in the width it asks for.
  const int cote = std::min(height(), Theme::Px(28)) - 4;
  fleche_->setGeometry(width() - cote - 2, 2, cote, cote);
  setTextMargins(0, 0, fleche_->isHidden() ? 0 : cote, 0);
}

void SaisieDate::resizeEvent(QResizeEvent* evenement) {
  Saisie::resizeEvent(evenement);
  PlacerFleche();
}

void SaisieDate::changeEvent(QEvent* evenement) {
  Saisie::changeEvent(evenement);
  if (evenement->type() == QEvent::ReadOnlyChange) fleche_->setEnabled(!isReadOnly());
}

void SaisieDate::keyPressEvent(QKeyEvent* evenement) {
  const bool ouvrir = evenement->key() == Qt::Key_F4 ||
                      (evenement->key() == Qt::Key_Down && evenement->modifiers() == Qt::AltModifier);
  if (ouvrir)
    OuvrirCalendrier();
  else
    Saisie::keyPressEvent(evenement);
}

void SaisieDate::OuvrirCalendrier() {
  if (isReadOnly() || !isEnabled()) return;
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* calendrier = new QCalendarWidget(menu);
  calendrier->setLocale(LocaleEcole());
  calendrier->setFirstDayOfWeek(Qt::Monday);
  calendrier->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendrier->setAccessibleName(accessibleName());
  Habiller(*calendrier);
  const std::optional<TDateTime> date = Date();
  if (date && *date != 0.0) calendrier->setSelectedDate(DateVersQt(*date));
  const auto choisir = [this, menu](const QDate& jour) {
    menu->close();
    setText(FormatDate(DateDeQt(jour)));
    setFocus();
    Terminer();
  };
  connect(calendrier, &QCalendarWidget::clicked, this, choisir);
  connect(calendrier, &QCalendarWidget::activated, this, choisir);
  auto* action = new QWidgetAction(menu);
  action->setDefaultWidget(calendrier);
  menu->addAction(action);
  menu->popup(mapToGlobal(QPoint(0, height())));
  calendrier->setFocus();
}
