#include "app/etiquettes_pdf.h"

#include <QCoreApplication>
#include <algorithm>
#include <iterator>

#include "documents/moteur_etiquettes.h"

TEtiquettesPdf::TEtiquettesPdf(IDialogues& dialogues)
    : Etiquettes({[this] {
                    return std::make_unique<TMoteurEtiquettes>(
                        [this](const TDocumentPrepare& etiquette, const TTravailEtiquette&) {
                          std::ranges::copy(etiquette.Pages, std::back_inserter(Document.Pages));
                          std::ranges::copy(etiquette.Defauts, std::back_inserter(Document.Defauts));
                        });
                  },
                  {},
                  QCoreApplication::applicationDirPath()},
                 dialogues) {}
