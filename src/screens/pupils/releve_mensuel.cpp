#include "screens/pupils/releve_mensuel.h"

#include "core/accord.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

namespace {

QString Texte(const char16_t* texte) { return QString::fromUtf16(texte); }

/// In the order of TService.
constexpr const char16_t* kGroupes[] = {u"Garderie du matin",
                                        u"Garderie du midi",
                                        u"Garderie du soir",
                                        u"Garderie mercredi",
                                        u"Etudes",
                                        u"Repas",
                                        u"Soupes"};
static_assert(std::size(kGroupes) == kServices.size());

QString CombienReleves(std::size_t nombre) {
  return Compter(static_cast<qint64>(nombre), u"relevé"_s, u"relevés"_s);
}

}  // namespace

TReleveMensuel::TReleveMensuel() {
  Grille.DefinirColonnes({{u"Catégorie"_s, 180},
                          {u"Date"_s, 94, TGenre::DateCourte},
                          {u"Entrée"_s, 68, TGenre::Heure},
                          {u"Sortie"_s, 66, TGenre::Heure},
                          {u"Montant"_s, 84, TGenre::Montant}});
}

void TReleveMensuel::Vider() {
  Grille.Vider();
  Total = {};
}

void TReleveMensuel::Remplir(const TEleve& eleve, const TPeriode& mois) {
  const TGrille::TLot lot(Grille);
  Vider();
  for (const TService service : kServices) AjouterService(eleve, mois, service);
}

void TReleveMensuel::AjouterService(const TEleve& eleve, const TPeriode& mois, TService service) {
  TLignesService lignes;
  const Currency cout = eleve.CoutService(service, mois, lignes);
  if (lignes.empty()) return;
  const bool gratuit = EstAccueil(service) && eleve.Flg3eEnfant;
  const auto montant = [gratuit](Currency plein) { return gratuit ? Currency() : plein; };
  Total += montant(cout);
  Grille.AjouterTete({Texte(kGroupes[static_cast<std::size_t>(service)]),
                      CombienReleves(lignes.size()),
                      {},
                      {},
                      montant(cout)});
  for (const TLigneService& ligne : lignes)
    Grille.Ajouter({{},
                    ligne.Presence->DateReleve,
                    ligne.Presence->HeureEntree,
                    ligne.Presence->HeureSortie,
                    montant(ligne.Montant)},
                   ligne.Presence);
}
