#include "ui/commun/saisie.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QTextCharFormat>
#include <QToolButton>
#include <QWidgetAction>

#include "core/exceptions.h"
#include "core/formats.h"
#include "forms/champs.h"
#include "ui/commun/champ_libelle.h"
#include "ui/commun/theme.h"

using namespace Qt::StringLiterals;

namespace {

/// What the text stands for; none when it cannot be read. An empty text is nothing.
template <class T>
std::optional<T> Lire(TGenreChamp genre, const QString& texte) {
  try {
    return ValeurEn<T>(ValeurDuTexte({.Genre = genre}, texte));
  } catch (const EConvertError&) {
    return std::nullopt;
  }
}

/// As the house writes it; none when it cannot be read.
std::optional<QString> Ecrire(TGenreChamp genre, const QString& texte) {
  try {
    const TChamp champ{.Genre = genre, .Obligatoire = !texte.trimmed().isEmpty()};  // midnight is typed
    return TexteDuChamp(champ, ValeurDuTexte(champ, texte));
  } catch (const EConvertError&) {
    return std::nullopt;
  }
}

}  // namespace

// Qt's own arrows are coloured, and its red of the week-end is not read on a dark ground.
void HabillerCalendrier(QCalendarWidget& calendrier) {
  calendrier.setLocale(LocaleEcole());
  calendrier.setFirstDayOfWeek(Qt::Monday);
  calendrier.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  QTextCharFormat repos;
  repos.setForeground(Theme::Couleur(TRole::Secondaire));
  calendrier.setWeekdayTextFormat(Qt::Saturday, repos);
  calendrier.setWeekdayTextFormat(Qt::Sunday, repos);
  const struct {
    const char *Bouton, *Icone;
  } fleches[] = {{"qt_calendar_prevmonth", "go-previous"}, {"qt_calendar_nextmonth", "go-next"}};
  for (const auto& [nom, icone] : fleches)
    if (auto* bouton = calendrier.findChild<QToolButton*>(QLatin1String(nom)))
      bouton->setIcon(Theme::Icone(QLatin1String(icone), TRole::SurAccent));
}

Saisie::Saisie(QWidget* parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::editingFinished, this, &Saisie::Terminer);
  connect(this, &QLineEdit::textEdited, this, [this] { MarquerFaute(*this, false); });
}

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

std::optional<Currency> SaisieMontant::Montant() const {
  return Lire<Currency>(TGenreChamp::Montant, text());
}

std::optional<QString> SaisieMontant::MettreEnForme(const QString& texte) const {
  return Ecrire(TGenreChamp::Montant, texte);
}

// The point of the keypad, which a Belgian keyboard does not turn into a comma.
void SaisieMontant::keyPressEvent(QKeyEvent* evenement) {
  const bool point =
      evenement->key() == Qt::Key_Period && evenement->modifiers().testFlag(Qt::KeypadModifier);
  QKeyEvent virgule(evenement->type(), Qt::Key_Comma, Qt::NoModifier, u","_s);
  Saisie::keyPressEvent(point ? &virgule : evenement);
}

SaisieHeure::SaisieHeure(QWidget* parent) : Saisie(parent) { setPlaceholderText(u"hh:mm"_s); }

std::optional<TDateTime> SaisieHeure::Heure() const { return Lire<TDateTime>(TGenreChamp::Heure, text()); }

std::optional<QString> SaisieHeure::MettreEnForme(const QString& texte) const {
  return Ecrire(TGenreChamp::Heure, texte);
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

std::optional<TDateTime> SaisieDate::Date() const { return Lire<TDateTime>(TGenreChamp::Date, text()); }

std::optional<QString> SaisieDate::MettreEnForme(const QString& texte) const {
  return Ecrire(TGenreChamp::Date, texte);
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
  calendrier->setAccessibleName(accessibleName());
  HabillerCalendrier(*calendrier);
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
