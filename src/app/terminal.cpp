#include "app/terminal.h"

#include <QTextStream>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void Ecrire(const QString& texte) {
  QTextStream erreurs(stderr);
  erreurs << QString(texte).remove(u'\r') << '\n';
}

}  // namespace

void TDialoguesTerminal::Message(const QString& texte) { Ecrire(texte); }

bool TDialoguesTerminal::Confirmer(const QString& question) {
  Ecrire(question + (Oui ? u" [oui]"_s : u" [non]"_s));
  return Oui;
}

std::optional<QString> TDialoguesTerminal::Saisir(const TSaisie&) { return {}; }

std::optional<QString> TDialoguesTerminal::ChoisirFichier(const QString&, const QString&) { return {}; }

std::optional<QString> TDialoguesTerminal::FichierAEnregistrer(const QString&, const QString&,
                                                               const QString&) {
  return {};
}

bool TDialoguesTerminal::Reessayer(const TReessai& reessai) {
  Ecrire(reessai.Texte + u'\n' + reessai.Cause);
  return false;
}

// A line each tenth of the work, so that a log stays readable.
void TDialoguesTerminal::Progression(int fait, int total, const QString& nom) {
  if (total <= 0) {
    dixieme_ = -1;
    return;
  }
  const int dixieme = static_cast<int>(10LL * fait / total);
  if (dixieme == dixieme_) return;
  dixieme_ = dixieme;
  Ecrire(u"%1 % : %2"_s.arg(qMin(100, dixieme * 10)).arg(nom));
}
