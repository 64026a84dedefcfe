#pragma once
#include "report/layout/coupures.h"
#include "report/layout/formeur.h"

/// Puts bands on pages: headers and footers of pages, heads printed again, columns filled downwards.
class TPagination {
 public:
  TPagination(TContexteImpression& contexte, TFormeur& formeur, TDocumentPrepare& document)
      : contexte_(contexte), formeur_(formeur), document_(document) {}

  /// The bands to come stand on pages of that kind, from a new page on.
  void Commencer(const TPageModele& page);
  /// The next band begins a page, as a master row's first one.
  void NouvelleSuite();
  /// Opens the page of the band to come, so that the procedures of its header go before those of the band.
  /// A page on which nothing then comes to stand is not kept.
  void Preparer(const TPosition& position);
  /// `complet`: the bands end a master row with pages of its own, or the run.
  void Placer(std::vector<TBandeFormee> bandes, bool complet);
  /// Closes the page in hand.
  void Finir();
  /// Puts page numbers into all pages, when all are there.
  void PoserNumeros();

 private:
  void Ouvrir(const TPosition& position, bool premiere);
  void Reserver(const TPosition& position);
  void Fermer(bool derniere);
  void Changer(const TPosition& position);
  void Poser(const TBandeFormee& bande, float x, float y);
  bool TientIci(const std::vector<TBandeFormee>& bandes, std::size_t debut, std::size_t fin,
                float besoin) const;
  void PlacerUne(const TBandeFormee& bande, const std::vector<TBandeFormee>& bandes,
                 const std::vector<std::size_t>& tetes);
  void Repeter(const std::vector<TBandeFormee>& bandes, const std::vector<std::size_t>& tetes);
  bool DansUneColonne(const TBandeFormee& bande);
  void FermerColonnes();
  struct TNumerosPage {
    std::size_t Page;
    int Colonne;  ///< from 0; -1 outside columns
    TNumeros Numeros;
  };
  void EcrireNumeros(const TNumerosPage& place, const QString& total);
  float HauteurPied(bool dernierePage, const TPosition& position);
  void NoterTropHaute(const TBandeFormee& bande);
  float HauteurBloc(const std::vector<TBandeFormee>& bandes, std::size_t debut, std::size_t fin) const;
  TPagePreparee& Page() { return document_.Pages.back(); }

  TContexteImpression& contexte_;
  TFormeur& formeur_;
  TDocumentPrepare& document_;
  const TPageModele* modele_ = nullptr;
  bool ouverte_ = false;
  bool vide_ = false;     ///< only the header is on the page
  bool premiere_ = true;  ///< the next page is the first of a master row
  float y_ = 0;           ///< from the upper edge of the paper
  float debut_ = 0;       ///< where the body of the page began
  float bas_ = 0;         ///< where it must end
  int colonne_ = -1;      ///< in hand; -1 outside columns
  float hautColonnes_ = 0;
  float plusBas_ = 0;   ///< foot of the lowest band on the page
  TPosition derniere_;  ///< of the last band on the page
  std::vector<TNumerosPage> numeros_;
};
