#include <QDirIterator>
#include <QRegularExpression>

#include "core/fichiers.h"

using namespace Qt::StringLiterals;

namespace {

QString SansBlancs(const QString& texte) {
  static const QRegularExpression blancs(u"\\s+"_s);
  return QString(texte).remove(blancs);
}

QString Contenu(const QString& chemin) { return QString::fromUtf8(LireFichier(chemin)); }

}  // namespace

// Who adds a row copies the sample: it must be a line of the code.
TEST(Exemples, CeQueLeGuideMontreEstDansLeCode) {
  QString code;
  QDirIterator sources(QString(DEPOT) + u"/src", {u"*.cpp"_s, u"*.h"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
  while (sources.hasNext()) code += SansBlancs(Contenu(sources.next()));
  int exemples = 0;
  for (const QString& ligne : Contenu(QString(DEPOT) + u"/docs/ajouter.md").split(u'\n')) {
    if (!ligne.startsWith(u"    "_s)) continue;
    ++exemples;
    EXPECT_TRUE(code.contains(SansBlancs(ligne))) << ligne.toStdString();
  }
  EXPECT_GT(exemples, 15);
}
