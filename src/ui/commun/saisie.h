#pragma once
#include <QLineEdit>
#include <optional>

#include "core/currency.h"
#include "core/dates.h"

class QToolButton;

class QCalendarWidget;

/// The calendar in the language of the school and the colours of the theme.
void HabillerCalendrier(QCalendarWidget& calendrier);

/// A field for one kind of value. What cannot be read stays as it was typed and is drawn as faulty.
class Saisie : public QLineEdit {
  Q_OBJECT
 signals:
  /// The user left the field, or pressed Enter, with another text than before.
  void Saisi();

 protected:
  explicit Saisie(QWidget* parent);
  /// The text as the house writes that value; no value when it cannot be read.
  virtual std::optional<QString> MettreEnForme(const QString& texte) const = 0;
  void Terminer();
  /// By the program: no signal, no fault.
  void Montrer(const QString& texte);
  void focusInEvent(QFocusEvent* evenement) override;

 private:
  QString avant_;
};

/// "1234,50", with up to four decimals, aligned right; the word "euros" stands beside it.
class SaisieMontant : public Saisie {
  Q_OBJECT
 public:
  explicit SaisieMontant(QWidget* parent = nullptr);
  /// 0 for an empty field; none when the text is no amount.
  std::optional<Currency> Montant() const;

 protected:
  void keyPressEvent(QKeyEvent* evenement) override;
  std::optional<QString> MettreEnForme(const QString& texte) const override;
};

/// "hh:mm"; "7h30", "7.30" and "730" are read too.
class SaisieHeure : public Saisie {
  Q_OBJECT
 public:
  explicit SaisieHeure(QWidget* parent = nullptr);
  /// 0 for an empty field; none when the text is no time.
  std::optional<TDateTime> Heure() const;

 protected:
  std::optional<QString> MettreEnForme(const QString& texte) const override;
};

/// "dd/MM/yyyy", typed or chosen from a calendar (the arrow, F4 or Alt and the arrow down).
class SaisieDate : public Saisie {
  Q_OBJECT
 public:
  explicit SaisieDate(QWidget* parent = nullptr);
  /// 0 empties the field.
  void DefinirDate(TDateTime date);
  /// 0 for an empty field; none when the text is no date.
  std::optional<TDateTime> Date() const;
  /// Without the arrow where room is short; the keys still open the calendar.
  void MontrerFleche(bool montrer);
  void OuvrirCalendrier();

 protected:
  std::optional<QString> MettreEnForme(const QString& texte) const override;
  void keyPressEvent(QKeyEvent* evenement) override;
  void resizeEvent(QResizeEvent* evenement) override;
  void changeEvent(QEvent* evenement) override;

 private:
  void PlacerFleche();

  QToolButton* fleche_;
};
