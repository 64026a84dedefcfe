#include "ui/documents/etiquettes_qt.h"

#include <QCoreApplication>
#include <QPrinter>
#include <QPrinterInfo>

#include "core/dialogues.h"
#include "documents/moteur_etiquettes.h"
#include "ui/documents/impression.h"

namespace {

void ImprimerEtiquette(IDialogues& dialogues, const TDocumentPrepare& etiquette,
                       const TTravailEtiquette& travail) {
  for (const TDefaut& defaut : etiquette.Defauts) dialogues.Message(defaut.Message);
  QPrinter imprimante(QPrinter::HighResolution);
  imprimante.setPrinterName(travail.Imprimante);
  imprimante.setCopyCount(travail.Exemplaires);
  Imprimer(etiquette, imprimante);
}

}  // namespace

TPosteEtiquettes PosteEtiquettes(IDialogues& dialogues) {
  return {[&dialogues]() -> std::unique_ptr<IMoteurEtiquettes> {
            if (QPrinterInfo::defaultPrinterName().isEmpty()) return nullptr;
            return std::make_unique<TMoteurEtiquettes>(
                [&dialogues](const TDocumentPrepare& etiquette, const TTravailEtiquette& travail) {
                  ImprimerEtiquette(dialogues, etiquette, travail);
                });
          },
          [] { return QPrinterInfo::defaultPrinterName(); }, QCoreApplication::applicationDirPath()};
}
