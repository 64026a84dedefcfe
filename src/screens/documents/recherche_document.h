#pragma once
#include "report/layout/document_prepare.h"

/// Looks for a text in a document that may still be growing.
class TRechercheDocument {
 public:
  /// "" ends the search.
  void Commencer(const QString& texte);
  /// Looks through the pages from the last one looked at to `pages`, the last excluded.
  void Avancer(const TDocumentPrepare& document, int pages);

  const QString& Texte() const { return texte_; }
  /// In page order.
  const std::vector<TTrouvaille>& Trouvailles() const { return trouvailles_; }
  /// Index of the one in hand; -1 for none.
  int Courante() const { return courante_; }
  /// Chooses the first one from that page on, or the first of all; null when there is none.
  const TTrouvaille* Choisir(int page);
  /// The next (1) or the one before (-1), round the end; null when there is none.
  const TTrouvaille* Suivante(int sens);

 private:
  const TTrouvaille* Trouvaille() const;

  QString texte_;
  std::vector<TTrouvaille> trouvailles_;
  int courante_ = -1;
  int pages_ = 0;  ///< looked through
};
