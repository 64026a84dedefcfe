#pragma once
#include "forms/champs.h"
#include "screens/contexte_ecran.h"

using namespace Qt::StringLiterals;

/// A modal form that is a table of fields with "Valider" and "Annuler". It has one way to refuse: the fault
/// stands at the field, the hand goes there, and the dialog stays open.
class TFrmDialogue : public TForm {
 public:
  QString Titre;
  QString Note;                      ///< stands above the fields; "" for none
  QString Principal = u"Valider"_s;  ///< caption of the primary button
  virtual TChamps& Champs() = 0;

  /// "Valider": true when the dialog is closed. Every text must convert, then `Controler` agrees.
  bool Valider();
  void Annuler();
  /// Where the hand starts.
  virtual int PremierChamp() { return 0; }

 protected:
  explicit TFrmDialogue(const QString& titre) : Titre(titre) {}
  /// Before the texts are converted; false keeps the dialog open.
  virtual bool Preparer() { return true; }
  /// All fields are written into the record. Refuses with `return Champs().Refuser(nom, faute)`.
  virtual bool Controler() { return true; }
  virtual void EcrireChamps() = 0;
};

/// A dialog over a record of its own.
template <class T>
class TFrmDialogueDe : public TFrmDialogue {
 public:
  TChampsDe<T>& Champs() override { return champs_; }
  /// As the fields show it at first, and as it was entered once the dialog is validated.
  T Saisi;
  /// Shows `Saisi` again.
  void Montrer() {
    champs_.Montrer(nullptr);
    champs_.Montrer(&Saisi);
  }

 protected:
  TFrmDialogueDe(const QString& titre, TTableChamps<T> table)
      : TFrmDialogue(titre), champs_(std::move(table), TChamps::TousALaFois) {
    champs_.Montrer(&Saisi);
  }
  void FormShow() override { champs_.Montrer(&Saisi); }
  void EcrireChamps() override { champs_.EcrireDans(Saisi); }

 private:
  TChampsDe<T> champs_;
};
