#pragma once
#include <QWidget>

class Etiquette;
class MarqueEtat;
class TFrmMain;

/// Left the last thing done; right the year on display, the working year and the server.
class BarreEtat : public QWidget {
  Q_OBJECT
 public:
  explicit BarreEtat(const TFrmMain& form, QWidget* parent = nullptr);

  /// The right side.
  void Actualiser();
  /// The left side; said aloud by a screen reader.
  void MontrerEtat();
  QString Texte() const;

 protected:
  void paintEvent(QPaintEvent* evenement) override;

 private:
  const TFrmMain& form_;
  MarqueEtat* etat_;
  MarqueEtat* ecart_;
  Etiquette* affichee_;
  Etiquette* travail_;
  Etiquette* serveur_;
};
