#include "demo/terminal.h"

#include <QTextStream>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void Ecrire(const QString& texte) { QTextStream(stderr) << texte << '\n'; }

}  // namespace

void TDialoguesDemo::Message(const QString& texte) {
  if (dits_.contains(texte)) return;
  dits_.insert(texte);
  Ecrire(texte);
}

bool TDialoguesDemo::Confirmer(const QString& question) {
  Ecrire(question % u" [non]");
  return false;
}

bool TDialoguesDemo::Reessayer(const TReessai& reessai) {
  Ecrire(reessai.Texte % u'\n' % reessai.Cause);
  return false;
}

void TDialoguesDemo::Progression(int fait, int total, const QString& nom) {
  const int dixieme = total > 0 ? 10 * fait / total : -1;
  if (dixieme > 0 && dixieme != dixieme_) Ecrire(u"  %1 %  %2"_s.arg(10 * dixieme, 3).arg(nom));
  dixieme_ = dixieme;
}
