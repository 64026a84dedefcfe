#pragma once
#include <QWidget>

class MarqueEtat;
class TitreSection;
class QVBoxLayout;

enum class TModeEdition { Lecture, Nouveau, Modification };

/// Edit panel under a list: its title, in what mode it is and the keys, then the fields.
class PanneauEdition : public QWidget {
  Q_OBJECT
 public:
  explicit PanneauEdition(QWidget* parent = nullptr);
  /// Where the fields go.
  QVBoxLayout* Contenu() const { return contenu_; }
  /// In reading, fields can be reached and copied from but not changed.
  void DefinirMode(TModeEdition mode, const QString& titre);
  TModeEdition Mode() const { return mode_; }
  /// Focus on the first field that can be written.
  void AllerAuPremierChamp();

 signals:
  /// Escape while one writes.
  void Annule();

 protected:
  void keyPressEvent(QKeyEvent* evenement) override;

 private:
  TModeEdition mode_ = TModeEdition::Lecture;
  TitreSection* titre_;
  MarqueEtat* marque_;
  QWidget* champs_;
  QVBoxLayout* contenu_;
};
