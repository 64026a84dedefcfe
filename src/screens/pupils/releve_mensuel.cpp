#include "screens/pupils/releve_mensuel.h"

#include "core/formats.h"
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

/// "lun. 05/11"
QString JourCourt(TDateTime date) { return LocaleEcole().toString(DateVersQt(date), u"ddd dd/MM"_s); }

QString CombienReleves(std::size_t nombre) {
  return QString::number(nombre) % (nombre == 1 ? u" relevé" : u" relevés");
}

}  // namespace

TReleveMensuel::TReleveMensuel() {
  Grille.DefinirColonnes({{Texte(u"Catégorie"), 180},
                          {Texte(u"Date"), 94},
                          {Texte(u"Entrée"), 68, TAlignement::Droite},
                          {Texte(u"Sortie"), 66, TAlignement::Droite},
                          {Texte(u"Montant"), 84, TAlignement::Droite, TOrdre::Nombre}});
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
                      FormatMontant(montant(cout))});
  for (const TLigneService& ligne : lignes)
    Grille.Ajouter({{},
                    JourCourt(ligne.Presence->DateReleve),
                    FormatHeureCourte(ligne.Presence->HeureEntree),
                    FormatHeureCourte(ligne.Presence->HeureSortie),
                    FormatMontant(montant(ligne.Montant))},
                   ligne.Presence);
}
