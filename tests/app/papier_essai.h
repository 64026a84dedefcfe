// Documents of the batch program as PDF, read back by programs that know nothing of it.
#pragma once
#include <QDir>
#include <QJsonArray>
#include <QRegularExpression>

#include "lot_essai.h"
#include "support/outil.h"

/// A pupil's entry in the table of contents: the class above it, or "", and the page, from 1.
struct TEntree {
  QString Classe, Nom;
  int Page;
};

class TPapierEssai : public TProgrammeEssai {
 protected:
  /// The command line of a document that becomes a PDF.
  QStringList EnPdf(const QStringList& document) const {
    return QStringList{u"document"_s} + document + QStringList{u"--pdf"_s, Pdf()};
  }
  QString Pdf() const { return Chemin("document.pdf"); }

  /// Makes the document, which must have nothing to say.
  void Imprimer(const QStringList& document) const {
    QFile::remove(Pdf());
    Verifier({{EnPdf(document) + QStringList{u"--json"_s, Chemin("document.json")}, 0, {}, {}}});
  }

  QStringList Pages(const QStringList& options = {u"-layout"_s}) const {
    QStringList pages = Sortie(u"pdftotext"_s, options + QStringList{Pdf(), u"-"_s}).split(u'\f');
    pages.removeLast();
    return pages;
  }

  std::vector<TEntree> Signets() const {
    const QString json = Sortie(u"qpdf"_s, {u"--json=2"_s, u"--json-key=outlines"_s, Pdf()});
    std::vector<TEntree> entrees;
    for (const QJsonValue& racine : QJsonDocument::fromJson(json.toUtf8())[u"outlines"_s].toArray()) {
      const auto ajouter = [&](const QString& classe, const QJsonValue& signet) {
        entrees.push_back({classe, signet[u"title"_s].toString(), signet[u"destpageposfrom1"_s].toInt()});
      };
      const QJsonArray enfants = racine[u"kids"_s].toArray();
      if (enfants.isEmpty()) ajouter({}, racine);
      for (const QJsonValue& enfant : enfants) ajouter(racine[u"title"_s].toString(), enfant);
    }
    return entrees;
  }

  /// The pages at 300 dots an inch, in order.
  QStringList Images() const {
    const QDir dossier(Chemin("points"));
    EXPECT_TRUE(QDir(dossier).removeRecursively() && QDir().mkpath(dossier.path()));
    Sortie(u"pdftoppm"_s, {u"-r"_s, u"300"_s, u"-gray"_s, Pdf(), dossier.filePath(u"p"_s)});
    QStringList images;
    for (const QFileInfo& page : dossier.entryInfoList(QDir::Files, QDir::Name)) images += page.filePath();
    return images;
  }

  /// What a scanner reads on the pages, sorted.
  QStringList Codes() const {
    const QStringList options{u"-q"_s, u"--nodbus"_s};
    QStringList codes = Sortie(u"zbarimg"_s, options + Images()).split(u'\n', Qt::SkipEmptyParts);
    codes.sort();
    return codes;
  }
};
