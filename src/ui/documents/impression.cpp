#include "ui/documents/impression.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>

#include "core/exceptions.h"
#include "report/output/peintre.h"

namespace {

constexpr double kPouce = 96.0;
constexpr double kMmParPixel = 25.4 / kPouce;

/// Paper of the page's size, without margins: those of the document are in its pages.
QPageLayout Papier(const TPagePreparee& page) {
  const QSizeF taille =
      QSizeF(static_cast<double>(page.Largeur), static_cast<double>(page.Hauteur)) * kMmParPixel;
  const bool paysage = taille.width() > taille.height();
  const QPageSize format(paysage ? taille.transposed() : taille, QPageSize::Millimeter, {},
                         QPageSize::FuzzyMatch);
  return {format, paysage ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

/// Indexes of the pages, in the order in which they leave the printer.
std::vector<std::size_t> Ordre(const TDocumentPrepare& document, const QPrinter& imprimante) {
  const int nombre = static_cast<int>(document.Pages.size());
  const bool plage = imprimante.printRange() == QPrinter::PageRange && imprimante.fromPage() > 0;
  const int premiere = plage ? imprimante.fromPage() : 1;
  const int derniere = plage ? std::min(imprimante.toPage(), nombre) : nombre;
  const int copies = imprimante.supportsMultipleCopies() ? 1 : std::max(1, imprimante.copyCount());
  const bool assemblees = imprimante.collateCopies();
  std::vector<std::size_t> ordre;
  for (int serie = 0; serie < (assemblees ? copies : 1); ++serie)
    for (int page = premiere; page <= derniere; ++page)
      ordre.insert(ordre.end(), static_cast<std::size_t>(assemblees ? 1 : copies),
                   static_cast<std::size_t>(page - 1));
  if (imprimante.pageOrder() == QPrinter::LastPageFirst) std::ranges::reverse(ordre);
  return ordre;
}

}  // namespace

void Imprimer(const TDocumentPrepare& document, QPrinter& imprimante) {
  const std::vector<std::size_t> ordre = Ordre(document, imprimante);
  if (ordre.empty()) return;
  imprimante.setFullPage(true);
  imprimante.setDocName(document.Titre);
  QPainter peintre;
  for (const std::size_t rang : ordre) {
    const TPagePreparee& page = document.Pages[rang];
    imprimante.setPageLayout(Papier(page));
    const bool pret = peintre.isActive() ? imprimante.newPage() : peintre.begin(&imprimante);
    if (!pret)
      throw Exception(QStringLiteral("L'impression sur « %1 » n'a pas pu se faire.")
                          .arg(imprimante.outputFileName().isEmpty() ? imprimante.printerName()
                                                                     : imprimante.outputFileName()));
    peintre.resetTransform();
    const double echelle = imprimante.resolution() / kPouce;
    peintre.scale(echelle, echelle);
    PeindrePage(page, peintre);
  }
}

QString ImprimerAvecDialogue(const TDocumentPrepare& document, int page, QWidget* parent) {
  QPrinter imprimante(QPrinter::HighResolution);
  if (document.Pages.empty()) return {};
  imprimante.setPageLayout(Papier(document.Pages[0]));
  QPrintDialog dialogue(&imprimante, parent);
  dialogue.setWindowTitle(QStringLiteral("Imprimer"));
  dialogue.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintCurrentPage);
  dialogue.setMinMax(1, static_cast<int>(document.Pages.size()));
  if (dialogue.exec() != QDialog::Accepted) return {};
  if (imprimante.printRange() == QPrinter::CurrentPage) {
    imprimante.setPrintRange(QPrinter::PageRange);
    imprimante.setFromTo(page + 1, page + 1);
  }
  Imprimer(document, imprimante);
  return imprimante.outputFileName().isEmpty() ? imprimante.printerName() : imprimante.outputFileName();
}
