#include "screens/commun/refus.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A box or a list that is refused goes back by itself, and its fault with it.
bool EstTape(const TChamp& champ) {
  return champ.Genre != TGenreChamp::Choix && champ.Genre != TGenreChamp::Coche;
}

}  // namespace

TLien AnnoncerRefus(TChamps& champs, ILienPrincipal& principal) {
  champs.SurRefus = [&principal](const TChamp& champ, const QString& faute) {
    const bool nomme = faute == champ.Refus;  // the words of the field itself tell what they are about
    principal.Etat(TNiveauEtat::Refus,
                   nomme ? QString(u"Non enregistré : " % faute)
                         : QString(u"Non enregistré : « " % NomDuChamp(champ) % u" » : " % faute));
  };
  return champs.SurChangement.Suivre([&champs, &principal, fautif = std::make_shared<int>(-1)](int champ) {
    if (*fautif >= 0 && champs.Faute(*fautif).isEmpty()) {
      *fautif = -1;
      principal.Etat(TNiveauEtat::Neutre, {});
    }
    if (champ >= 0 && EstTape(champs.Champ(champ)) && !champs.Faute(champ).isEmpty()) *fautif = champ;
  });
}
