#pragma once
#include "report/layout/contexte_impression.h"

class TMoteur;

/// Lays a report out page by page, so that the first pages show while the rest is made. The report and
/// the template stay as they are, and must outlive it.
class TMiseEnPage {
 public:
  TMiseEnPage(const TRapport& rapport, const TModele& modele, const TImpression& impression = {});
  ~TMiseEnPage();

  /// Lays out some more pages; false when all are there. The last page in hand may still grow, and a
  /// total of pages is empty, until it has returned false.
  bool Continuer();
  const TDocumentPrepare& Document() const { return document_; }
  /// The finished document; this object is not used afterwards.
  TDocumentPrepare Prendre() { return std::move(document_); }

 private:
  TDocumentPrepare document_;
  TContexteImpression contexte_;
  std::unique_ptr<TMoteur> moteur_;
};

/// All pages at once. Faults are in the document; nothing is asked and nothing raises.
TDocumentPrepare MettreEnPage(const TRapport& rapport, const TModele& modele,
                              const TImpression& impression = {});
