#pragma once
#include <QHash>
#include <QObject>

#include "forms/champs.h"

class MarqueEtat;
class QBoxLayout;
class QRadioButton;

/// Binds a table of fields to widgets, which it makes. A widget shows what its field holds; the field that is
/// being typed in is never rewritten. It is committed when it is left, by Enter too; while its text is
/// refused the hand comes back to it, and Escape gives the stored value again.
class LiaisonChamps : public QObject {
  Q_OBJECT
 public:
  /// The fields outlive it; the widgets end with the parent.
  LiaisonChamps(TChamps& champs, QWidget* parent);

  TChamps& Champs() const { return champs_; }
  /// The widget of that field, made when first asked for. It is called by the label unless a name is given.
  QWidget* Widget(int champ, const QString& nomAccessible = {});
  QWidget* Widget(const QString& nom, const QString& nomAccessible = {}) {
    return Widget(champs_.Indice(nom), nomAccessible);
  }
  /// A button that stands for one value of a choice.
  QRadioButton* Radio(const QString& nom, int valeur, const QString& texte);
  /// Fields side by side, with what stands behind them; below them a line for their fault. A part of 0 keeps
  /// its own width, else they share what is left. Where all keep theirs, they go on to a further line.
  struct TPart {
    int Champ;
    int Part = 1;
  };
  QLayout* Rangee(const std::vector<TPart>& parts);
  /// The field gets the focus.
  void AllerA(int champ);

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  QWidget* Creer(int champ);
  QWidget* CreerBoutons(int champ);
  void Actualiser(int champ);
  void ActualiserUn(int champ);
  void ActualiserFautes();
  bool Quitter(int champ);
  int ChampDe(const QObject* widget) const;
  QLayout* RangSimple(const std::vector<TPart>& parts);
  QLayout* RangPliant(const std::vector<TPart>& parts);
  void AjouterAuRang(QBoxLayout& rang, const TPart& part, bool premier);

  TChamps& champs_;
  int retour_ = -1;                ///< refused field that the focus is going back to; -1 for none
  std::vector<QWidget*> widgets_;  ///< by field; null until asked for
  struct TRadio {
    int Champ;
    int Valeur;
    QRadioButton* Bouton;
  };
  std::vector<TRadio> radios_;
  struct TLigneFaute {
    std::vector<int> Champs;
    MarqueEtat* Marque;
  };
  std::vector<TLigneFaute> fautes_;
  TLiens liens_;
};

/// The whole table as a form: labels before their fields, in the columns that the table says.
QLayout* CreerFormulaire(LiaisonChamps& liaison);
