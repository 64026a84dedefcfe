#pragma once
#include <optional>
#include <set>
#include <vector>

#include "application/controleur.h"
#include "services/frais_eleve.h"

/// A new line that says what that one says, to come back when it has been deleted.
std::unique_ptr<TFraisEleve> CopieDe(const TFraisEleve& ligne);

/// Who owes a fee of the year on display: as the hand ticks it, and as it is stored. A tick or a mark stays
/// in memory until `Enregistrer`.
class TAttributionFrais {
 public:
  /// Needs a year on display (`Globals`) as soon as a fee is opened.
  explicit TAttributionFrais(TControleur& controleur) : controleur_(controleur) {}

  /// Ticks who owes the fee; null, for a new one, ticks nobody. Raises EDistributor.
  void Ouvrir(TFrais* frais);

  bool EstCoche(const TEleve& eleve) const { return coches_.contains(eleve.Id); }
  /// Of a pupil who is ticked: his line is paid, or will be.
  bool EstPaye(const TEleve& eleve) const;
  int NombreCoches() const { return static_cast<int>(coches_.size()); }
  void Cocher(const TEleve& eleve, bool coche);
  /// Something is ticked, unticked or marked that is not stored.
  bool EstModifiee() const { return coches_ != depart_; }

  /// Who is ticked in this mode has paid. Leaving it takes the marks away that are not stored.
  bool ModePaye() const { return modePaye_; }
  void DefinirModePaye(bool paye);

  /// Gives the stored fee to who was ticked and takes it from who was unticked by hand, each pupil's lines
  /// saved at once. Who owes it by now is read again: nobody gets a second line. Raises Exception for a fee
  /// without a row, and at the
  /// first pupil whose lines cannot be saved; those before are stored, and the ticks say so.
  void Enregistrer(TFrais& frais);

  /// A line that was taken from a pupil of the year, so that it can come back.
  struct TLigneRetiree {
    int EleveId = 0;
    QString Nom;
    std::unique_ptr<TFraisEleve> Ligne;
  };
  using TLignesRetirees = std::vector<TLigneRetiree>;
  /// Takes the fee from all who owe it; `retirees` gets each line as it goes. Raises Exception as
  /// `Enregistrer`.
  void RetirerATous(TFrais& frais, TLignesRetirees& retirees);
  /// Gives those lines back, under a fee that nobody owes, and says which cannot come back whole: without its
  /// payment, where the movement of the bank is another's by now, or not at all, where the pupil has left.
  /// What is back leaves `lignes`. Raises Exception as `Enregistrer`.
  void Rendre(TFrais& frais, TLignesRetirees& lignes);

 private:
  void Donner(int eleveId, std::unique_ptr<TFraisEleve> ligne, int frais);
  std::optional<TLigneRetiree> Retirer(int eleveId, int frais);

  TControleur& controleur_;
  std::set<int> depart_;   ///< keys of who owes it in the table
  std::set<int> coches_;   ///< keys of who is ticked
  std::set<int> payes_;    ///< of `depart_`, who has paid
  std::set<int> marques_;  ///< ticked in the mode of who has paid
  bool modePaye_ = false;
};
