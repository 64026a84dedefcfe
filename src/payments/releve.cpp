#include "payments/releve.h"

#include <algorithm>

#include "payments/communication_structuree.h"

using namespace Qt::StringLiterals;

namespace {

// What the columns of the movements hold, in characters.
constexpr qsizetype kTexteMaximum = 250;
constexpr qsizetype kCompteMaximum = 50;

QString Tronque(const QString& texte, qsizetype maximum) {
  if (texte.size() <= maximum) return texte;
  const QList<uint> caracteres = texte.toUcs4().first(std::min(maximum, texte.toUcs4().size()));
  return QString::fromUcs4(reinterpret_cast<const char32_t*>(caracteres.data()), caracteres.size());
}

}  // namespace

TDispositionReleve DispositionDuParametre(const QString& valeur) {
  if (valeur == u"1") return TDispositionReleve::B;
  return valeur == u"2" ? TDispositionReleve::C : TDispositionReleve::A;
}

TReleveLu LireReleve(const QByteArray& octets, TDispositionReleve disposition) {
  TReleveLu releve =
      disposition == TDispositionReleve::C ? LireLignesEtiquetees(octets) : LireTableau(octets, disposition);
  for (TMouvement& mouvement : releve.Mouvements) {
    // What is normalised may fit; a file that is not taken is shown as it came.
    if (!releve.Faute) mouvement.Communication = CommunicationNormalisee(mouvement.Communication);
    Tronquer(mouvement);
  }
  return releve;
}

void Tronquer(TMouvement& mouvement) {
  mouvement.Donneur = Tronque(mouvement.Donneur, kTexteMaximum);
  mouvement.Communication = Tronque(mouvement.Communication, kTexteMaximum);
  mouvement.Compte = Tronque(mouvement.Compte, kCompteMaximum);
}

QString FauteDeLigne(int ligne, const QString& message) {
  return u"Ligne %1 : %2"_s.arg(ligne + 1).arg(message);
}
