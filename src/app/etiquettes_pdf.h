#pragma once
#include "documents/etiquettes.h"
#include "report/layout/document_prepare.h"

/// Labels that go into one document, a page a label, instead of a printer.
class TEtiquettesPdf {
 public:
  /// `dialogues` must outlive it.
  explicit TEtiquettesPdf(IDialogues& dialogues);
  TEtiquettesPdf(const TEtiquettesPdf&) = delete;
  TEtiquettesPdf& operator=(const TEtiquettesPdf&) = delete;

  TDocumentPrepare Document;  ///< the labels that were printed
  TEtiquettes Etiquettes;
};
