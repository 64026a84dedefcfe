#include "screens/commun/refus.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A box or a list that is stored at once goes back by itself when it is refused, and its fault with it.
bool GardeSaFaute(const TChamps& champs, int champ) {
  const TGenreChamp genre = champs.Champ(champ).Genre;
  const bool choisi = genre == TGenreChamp::Choix || genre == TGenreChamp::Coche;
  return !champs.Faute(champ).isEmpty() && !(choisi && champs.RendEnEchappant(champ));
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
    if (champ >= 0 && GardeSaFaute(champs, champ)) *fautif = champ;
  });
}
