#pragma once
#include "report/layout/pagination.h"
#include "report/parcours.h"

/// Walks a report as the bands of a template ask for, one master row after the other.
class TMoteur {
 public:
  TMoteur(TContexteImpression& contexte, TDocumentPrepare& document);

  /// Lays out at least one more master row; false when there was nothing left to do.
  bool Continuer();

 private:
  using TRole = TBandeFormee::TRole;
  enum class TEtape { Debut, Lignes, Fin };

  /// Pages of their own for each master row: all pages of a row follow each other.
  bool ParSuites() const;
  /// Bands for lists of so many columns, and no others.
  bool Sort(const TBandeModele& bande) const;
  TStyle StyleColonne(const TPageModele& page, TSorteBande sorte, TSorteBande reference) const;
  void CommencerPage();
  void FinirPage();
  void LigneMaitre(const TPageModele& page);
  void Details(const TPageModele& page, float x);
  void SousDetails(const TPageModele& page, float x);
  void Ajouter(const TPageModele& page, TSorteBande sorte, TRole role, int niveau, float x);
  /// The heads or feet of a data band.
  void AjouterDe(const TPageModele& page, TSorteBande sorte, TSorteBande jeu, float x);
  void AjouterBande(const TPageModele& page, const TBandeModele& bande, TRole role, int niveau, float x);
  /// The other columns of a list, beside the reference column.
  void AjouterColonnes(const TPageModele& page, TSorteBande sorte, TBandeFormee& ligne);
  void SousRapports(const TBandeModele& bande, int niveau, float x);
  void Compter(std::size_t niveau, int ligne);
  void PoserSignet(TBandeFormee& bande);
  bool ImprimeSiVide(const TPageModele& page, TSorteBande sorte) const;
  bool NoeudVide() const;
  /// False when a sub-report has walked the rows below.
  bool EstSur(const TPosition& place) const { return parcours_->Position().Curseur == place.Curseur; }
  void Suivre() { contexte_.Position = parcours_->Position(); }

  TContexteImpression& contexte_;
  TFormeur formeur_;
  TPagination pagination_;
  std::vector<const TPageModele*> pages_;  ///< those that are no sub-report
  std::size_t page_ = 0;
  TEtape etape_ = TEtape::Debut;
  std::optional<TParcours> parcours_;
  std::vector<TBandeFormee> bandes_;
  std::array<int, 3> lignes_{};          ///< rows so far in the whole report, by level
  std::vector<TPlaceColonne> colonnes_;  ///< of the page in hand, in column mode
  QString classe_;                       ///< of the last bookmark
  int profondeur_ = 0;
};
