#include "ui/documents/impression.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>

#include "core/dialogues.h"
#include "core/exceptions.h"
#include "report/output/pdf.h"
#include "report/output/peintre.h"

using namespace Qt::StringLiterals;

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

/// Indexes of the pages, in the order in which they leave a printer that makes `copies` copies.
std::vector<std::size_t> Ordre(const TDocumentPrepare& document, const QPrinter& imprimante, int copies) {
  const int nombre = static_cast<int>(document.Pages.size());
  const bool plage = imprimante.printRange() == QPrinter::PageRange && imprimante.fromPage() > 0;
  const int premiere = plage ? imprimante.fromPage() : 1;
  const int derniere = plage ? std::min(imprimante.toPage(), nombre) : nombre;
  const bool assemblees = imprimante.collateCopies();
  std::vector<std::size_t> ordre;
  for (int serie = 0; serie < (assemblees ? copies : 1); ++serie)
    for (int page = premiere; page <= derniere; ++page)
      ordre.insert(ordre.end(), static_cast<std::size_t>(assemblees ? 1 : copies),
                   static_cast<std::size_t>(page - 1));
  if (imprimante.pageOrder() == QPrinter::LastPageFirst) std::ranges::reverse(ordre);
  return ordre;
}

int Copies(const QPrinter& imprimante) { return std::max(1, imprimante.copyCount()); }

TDocumentPrepare Extrait(const TDocumentPrepare& document, const std::vector<std::size_t>& ordre) {
  TDocumentPrepare extrait;
  extrait.Titre = document.Titre;
  for (const std::size_t page : ordre) extrait.Pages.push_back(document.Pages[page]);
  return extrait;
}

/// What the user chose in the dialog, as CUPS is told.
QStringList ArgumentsLp(const TDocumentPrepare& document, const QPrinter& imprimante) {
  static const std::pair<QPrinter::DuplexMode, QString> kFaces[] = {
      {QPrinter::DuplexNone, u"sides=one-sided"_s},
      {QPrinter::DuplexLongSide, u"sides=two-sided-long-edge"_s},
      {QPrinter::DuplexShortSide, u"sides=two-sided-short-edge"_s}};
  const QPageSize format = Papier(document.Pages[0]).pageSize();
  const QSizeF taille = format.size(QPageSize::Millimeter);
  const QString papier =
      format.id() == QPageSize::Custom
          ? u"Custom.%1x%2mm"_s.arg(std::lround(taille.width())).arg(std::lround(taille.height()))
          : format.key();
  const QString assemblees = imprimante.collateCopies() ? u"true"_s : u"false"_s;
  QStringList arguments{u"-d"_s, imprimante.printerName(),
                        u"-t"_s, document.Titre,
                        u"-n"_s, QString::number(Copies(imprimante)),
                        u"-o"_s, u"collate=" % assemblees,
                        u"-o"_s, u"media=" % papier};
  for (const auto& [mode, option] : kFaces)
    if (mode == imprimante.duplex()) arguments << u"-o"_s << option;
  if (imprimante.colorMode() == QPrinter::GrayScale) arguments << u"-o"_s << u"print-color-mode=monochrome"_s;
  return arguments << u"--"_s << u"-"_s;
}

Exception EImpression(const QPrinter& imprimante, const QString& raison = {}) {
  const QString ou =
      imprimante.outputFileName().isEmpty() ? imprimante.printerName() : imprimante.outputFileName();
  const QString texte = u"L'impression sur « %1 » n'a pas pu se faire."_s.arg(ou);
  return Exception(raison.isEmpty() ? texte : texte + u'\n' + raison);
}

void EnvoyerACups(const QString& lp, const TDocumentPrepare& document, const QPrinter& imprimante) {
  constexpr int kDelaiMs = 60'000;
  QProcess processus;
  processus.start(lp, ArgumentsLp(document, imprimante));
  if (processus.waitForStarted()) {
    processus.write(PdfEnOctets({&document}, document.Titre, {}));
    processus.closeWriteChannel();
  }
  if (!processus.waitForFinished(kDelaiMs) || processus.exitStatus() != QProcess::NormalExit ||
      processus.exitCode() != 0)
    throw EImpression(imprimante, QString::fromLocal8Bit(processus.readAllStandardError()).trimmed());
}

}  // namespace

void Imprimer(const TDocumentPrepare& document, QPrinter& imprimante) {
  const QString fichier = imprimante.outputFileName();
  const QString lp = fichier.isEmpty() ? QStandardPaths::findExecutable(u"lp"_s) : QString();
  if (fichier.isEmpty() && lp.isEmpty()) return PeindreSurImprimante(document, imprimante);
  const TDocumentPrepare extrait =
      Extrait(document, Ordre(document, imprimante, fichier.isEmpty() ? 1 : Copies(imprimante)));
  if (extrait.Pages.empty()) return;
  if (lp.isEmpty())
    EcrirePdf({&extrait}, extrait.Titre, {}, fichier);
  else
    EnvoyerACups(lp, extrait, imprimante);
}

void PeindreSurImprimante(const TDocumentPrepare& document, QPrinter& imprimante) {
  const int copies = imprimante.supportsMultipleCopies() ? 1 : Copies(imprimante);
  imprimante.setFullPage(true);
  imprimante.setDocName(document.Titre);
  QPainter peintre;
  for (const std::size_t rang : Ordre(document, imprimante, copies)) {
    const TPagePreparee& page = document.Pages[rang];
    imprimante.setPageLayout(Papier(page));
    if (!(peintre.isActive() ? imprimante.newPage() : peintre.begin(&imprimante)))
      throw EImpression(imprimante);
    peintre.resetTransform();
    const double echelle = imprimante.resolution() / kPouce;
    peintre.scale(echelle, echelle);
    PeindrePage(page, peintre);
  }
}

QString ImprimerAvecDialogue(const TDocumentPrepare& document, int page, IDialogues& dialogues,
                             QWidget* parent) {
  QPrinter imprimante(QPrinter::HighResolution);
  if (document.Pages.empty()) return {};
  if (QPrinterInfo::availablePrinterNames().isEmpty())
    dialogues.Message(
        u"Aucune imprimante n'a été trouvée sur cet ordinateur. La fenêtre suivante ne propose que "
        "d'enregistrer un fichier PDF."_s);
  imprimante.setPageLayout(Papier(document.Pages[0]));
  QPrintDialog dialogue(&imprimante, parent);
  dialogue.setWindowTitle(u"Imprimer"_s);
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
