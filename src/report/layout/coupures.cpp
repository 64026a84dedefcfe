#include "report/layout/coupures.h"

namespace {

using TRole = TBandeFormee::TRole;

/// A last section up to this share of a page goes with the footer that closes it.
constexpr float kPartDeSection = 1.0F / 3;

class TChercheurCoupures {
 public:
  TChercheurCoupures(std::span<const TBandeFormee> bandes, float pleine) : bandes_(bandes), pleine_(pleine) {
    coupures_.Avant.assign(bandes.size(), true);
  }

  TCoupures Chercher() {
    for (std::size_t i = 0; i < bandes_.size(); ++i) {
      const TBandeFormee& bande = bandes_[i];
      if (bande.Role == TRole::Tete || bande.Modele->GarderEnfant) GarderDeuxLignes(i);
      if (bande.Role == TRole::Pied) GarderAvantPied(i);
      if (bande.Modele->GarderEnsemble) GarderEnsemble(i);
    }
    ChercherTetes();
    return std::move(coupures_);
  }

 private:
  bool MemesLignes(std::size_t i, std::size_t j) const {
    return bandes_[i].Role == TRole::Ligne && bandes_[i].Modele == bandes_[j].Modele;
  }
  void Lier(std::size_t i) {
    if (i < bandes_.size()) coupures_.Avant[i] = false;
  }

  void GarderDeuxLignes(std::size_t tete) {
    Lier(tete + 1);
    if (tete + 2 < bandes_.size() && MemesLignes(tete + 1, tete + 2)) Lier(tete + 2);
  }

  void GarderAvantPied(std::size_t pied) {
    Lier(pied);
    std::size_t ligne = pied;
    while (ligne > 0 && bandes_[ligne].Role == TRole::Pied) --ligne;
    const bool final = bandes_[pied].Niveau < bandes_[ligne].Niveau;
    if (!final || ligne == 0) return;
    if (MemesLignes(ligne - 1, ligne)) Lier(ligne);
    // The last section: back to its head.
    std::size_t debut = ligne;
    while (debut > 0 && MemesLignes(debut - 1, ligne)) --debut;
    while (debut > 0 && (bandes_[debut - 1].Role == TRole::Tete ||
                         (bandes_[debut - 1].Role == TRole::Ligne && bandes_[debut - 1].Niveau > 0)))
      --debut;
    if (Hauteur(debut, pied + 1) <= pleine_ * kPartDeSection) LierTout(debut, pied + 1);
  }

  /// A row and what hangs on it.
  void GarderEnsemble(std::size_t ligne) {
    std::size_t fin = ligne + 1;
    while (fin < bandes_.size() && bandes_[fin].Niveau > bandes_[ligne].Niveau) ++fin;
    if (Hauteur(ligne, fin) <= pleine_) LierTout(ligne, fin);
  }

  float Hauteur(std::size_t debut, std::size_t fin) const {
    float hauteur = 0;
    for (std::size_t i = debut; i < fin; ++i) hauteur += bandes_[i].Hauteur;
    return hauteur;
  }
  void LierTout(std::size_t debut, std::size_t fin) {
    for (std::size_t i = debut + 1; i < fin; ++i) Lier(i);
  }

  void ChercherTetes() {
    coupures_.Tetes.resize(bandes_.size());
    std::vector<std::size_t> ouvertes;
    for (std::size_t i = 0; i < bandes_.size(); ++i) {
      std::erase_if(ouvertes, [&](std::size_t tete) { return EstFinie(tete, i); });
      coupures_.Tetes[i] = ouvertes;
      if (bandes_[i].Modele->Repeter) ouvertes.push_back(i);
    }
  }

  /// The section of a head that is printed again ends before the band `i`.
  bool EstFinie(std::size_t tete, std::size_t i) const {
    const TBandeFormee& tetiere = bandes_[tete];
    const TBandeFormee& bande = bandes_[i];
    if (tetiere.Role != TRole::Tete) return bande.Niveau <= tetiere.Niveau;
    const bool close = bandes_[i - 1].Role == TRole::Pied && bandes_[i - 1].Niveau == tetiere.Niveau &&
                       bande.Role != TRole::Pied;
    return bande.Niveau < tetiere.Niveau || bande.Modele == tetiere.Modele || close;
  }

  const std::span<const TBandeFormee> bandes_;
  const float pleine_;
  TCoupures coupures_;
};

}  // namespace

TCoupures TrouverCoupures(std::span<const TBandeFormee> bandes, float pleine) {
  return TChercheurCoupures(bandes, pleine).Chercher();
}
