#pragma once
#include "core/distributor.h"
#include "core/index.h"

/// What a month marker says. The numbers are stored.
enum class TTypeMarque : int {
  Midi = 1,    ///< goes home at noon
  Etude = 2,   ///< is in the study
  Forfait = 3  ///< pays flat rates
};

/// That something holds of a pupil for a whole month.
struct TPresenceParticuliere : TBaseObject {
  int EleveId = 0;
  TTypeMarque TypePresence{};
  int Mois = 0;   ///< 1 to 12
  int Annee = 0;  ///< calendar year of that month
};

/// The month markers from July of a school year to the next June.
class TPresencesParticulieres : public TCollection<TPresenceParticuliere> {
 public:
  TPresencesParticulieres(TDataModule1& base, int annee);

  /// Adds the marker unless one of its kind holds for that pupil and month, or its kind is unknown:
  /// then it is dropped. Does not save.
  void AjouteMarque(std::unique_ptr<TPresenceParticuliere> marque);

  bool MarqueMoisMidi(int eleve, int mois) const { return Marque(TTypeMarque::Midi, eleve, mois); }
  bool MarqueMoisEtude(int eleve, int mois) const { return Marque(TTypeMarque::Etude, eleve, mois); }
  bool MarqueMoisForfait(int eleve, int mois) const { return Marque(TTypeMarque::Forfait, eleve, mois); }
  // No effect when there is none.
  void RetireMarqueMidi(int eleve, int mois) { RetireMarque(TTypeMarque::Midi, eleve, mois); }
  void RetireMarqueEtude(int eleve, int mois) { RetireMarque(TTypeMarque::Etude, eleve, mois); }
  void RetireMarqueForfait(int eleve, int mois) { RetireMarque(TTypeMarque::Forfait, eleve, mois); }

  /// The first marker of the kind, or null.
  TPresenceParticuliere* Marque(TTypeMarque type, int eleve, int mois) const;
  /// Removes the first marker of the kind.
  void RetireMarque(TTypeMarque type, int eleve, int mois);

 protected:
  void DefineQuery() override;
  void Indexer(TPresenceParticuliere& m) override { parEleve_.Suivre(m, m.EleveId); }
  void Desindexer(TPresenceParticuliere& m) override { parEleve_.Oublier(m); }

 private:
  int annee_;
  TIndex<int, TPresenceParticuliere> parEleve_;
};
