#include "workflows/calcul_attestation.h"

#include <algorithm>

#include "core/calendrier_scolaire.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// A part in the making. `Fin` is the day before the twelfth birthday when that lies in the part.
struct TPartie {
  const TEleve& Eleve;
  TDateTime Debut;
  TDateTime Fin;
  TDateTime FinDesJours;  ///< the last day that has presences
  int PremierMois;
  int DernierMois;

  int MoisDeFin() const { return DecodeDate(Fin).Mois; }
};

/// What care cost and what was paid for it; the lower one counts.
struct TComparaison {
  Currency Cout;
  Currency Paye;

  Currency Moindre() const { return std::min(Cout, Paye); }
};

using TComparer = TComparaison (*)(const TPartie&);

Currency Garde(const TPartie& partie) { return partie.Eleve.TotalGarderies({partie.Debut, partie.Fin}); }

Currency PaiementsDesMois(const TEleve& eleve, int premier, int dernier) {
  Currency total;
  for (int mois = premier; mois <= dernier; ++mois) total += eleve.PaiementsMois(mois);
  return total;
}

TComparaison ParVersementsServices(const TPartie& partie) {
  return {Garde(partie), partie.Eleve.VersementsServices()};
}

TComparaison ParTousLesMois(const TPartie& partie) {
  return {partie.Eleve.TotalGarderies({partie.Debut, partie.FinDesJours}),
          PaiementsDesMois(partie.Eleve, partie.PremierMois, partie.DernierMois)};
}

TComparaison ParMoisJusquaFin(const TPartie& partie) {
  return {Garde(partie), PaiementsDesMois(partie.Eleve, partie.PremierMois, partie.MoisDeFin())};
}

TComparaison ParVersementsLibres(const TPartie& partie) {
  TComparaison montants{Garde(partie), {}};
  if (const TAllFraisEleve* lignes = partie.Eleve.GetAllFrais())
    for (const TFraisEleve& ligne : *lignes)
      if (ligne.EstLibre()) montants.Paye += ligne.MontantVerse;
  return montants;
}

/// Midday fees that are paid exactly, and free payments of the months of the part. The schools' figures
/// have always compared the number of the last month with the place of a line in the pupil's list.
void AjouterSupplements(const TPartie& partie, TComparaison& montants) {
  const TAllFraisEleve* lignes = partie.Eleve.GetAllFrais();
  if (lignes == nullptr) return;
  const auto deLaPartie = [&](int mois) { return mois >= partie.PremierMois && mois <= partie.DernierMois; };
  const int dernier = std::min(lignes->Count() - 1, partie.MoisDeFin());
  for (int place = 0; place <= dernier; ++place) {
    const TFraisEleve& ligne = (*lignes)[place];
    if (ligne.FraisService() && deLaPartie(ligne.MoisFrais()) && ligne.MontantVerse == ligne.MontantFrais() &&
        ligne.LibelleFrais().toUpper().contains(u"MIDI"_s)) {
      montants.Cout += ligne.MontantFrais();
      montants.Paye += ligne.MontantVerse;
    }
    if (ligne.EstLibre() && deLaPartie(ligne.Mois)) montants.Paye += ligne.MontantVerse;
  }
}

TComparaison ParMoisEtSupplements(const TPartie& partie) {
  const int dernier = std::min(partie.DernierMois, partie.MoisDeFin());
  TComparaison montants{Garde(partie), PaiementsDesMois(partie.Eleve, partie.PremierMois, dernier)};
  AjouterSupplements(partie, montants);
  return montants;
}

/// A way of computing.
struct TCalcul {
  TComparer Automne;
  TComparer PrintempsPrecedent;  ///< of the tax year, on the record of the school year before
  TComparer Printemps;
  bool AutomneAvantDouze = false;      ///< the autumn counts only before the twelfth birthday
  bool AutomneParResponsable = false;  ///< of parents who live apart, what the one paid takes its place
};

/// By parameter, "1" to "4".
constexpr TCalcul kCalculs[] = {
    {ParVersementsServices, ParTousLesMois, ParMoisJusquaFin},
    {ParMoisEtSupplements, ParMoisEtSupplements, ParMoisEtSupplements, true},
    {ParVersementsServices, ParVersementsServices, ParVersementsServices, false, true},
    {ParVersementsLibres, ParVersementsLibres, ParVersementsLibres},
};

const TCalcul* TrouverCalcul(const QString& parametre) {
  for (std::size_t i = 0; i < std::size(kCalculs); ++i)
    if (parametre == QString::number(i + 1)) return &kCalculs[i];
  return nullptr;
}

/// `limite`: where the part ends unless the twelfth birthday comes first.
TPartie Partie(const TEleve& eleve, TDateTime debut, TDateTime limite, TDateTime finDesJours, int premierMois,
               int dernierMois) {
  const TDateTime douze = DouzeAns(eleve);
  const bool dedans = douze >= debut && douze <= limite;
  return {eleve, debut, dedans ? douze - 1 : limite, finDesJours, premierMois, dernierMois};
}

TPartie Automne(const TEleve& eleve) {
  const TDateTime fin = EncodeDate(kAnneeFiscale, 12, 31);
  return Partie(eleve, EncodeDate(kAnneeFiscale, 9, 1), fin, fin, 9, 12);
}

TPartie Printemps(const TEleve& eleve, TDateTime limite) {
  return Partie(eleve, EncodeDate(kAnneeFiscale, 1, 1), limite, EncodeDate(kAnneeFiscale, 6, 30), 1, 6);
}

TPartieAttestation Retenir(const TPartie& partie, TComparer comparer) {
  const TDateTime compte =
      comparer == ParTousLesMois ? partie.FinDesJours : std::min(partie.Fin, partie.FinDesJours);
  return {comparer(partie).Moindre(), DouzeAns(partie.Eleve) <= compte};
}

TPartieAttestation PartieAutomne(const TDossierAttestation& dossier, const TCalcul& calcul, int responsable) {
  TPartieAttestation partie = Retenir(Automne(dossier.Eleve), calcul.Automne);
  if (!calcul.AutomneParResponsable || responsable == 0) return partie;
  partie.Montant = dossier.Mouvements(responsable);
  partie.ParResponsable = true;
  return partie;
}

}  // namespace

Currency TMontantAttestation::Total() const {
  Currency total;
  for (const TPartieAttestation& partie : Parties) total += partie.Montant;
  return total;
}

TDateTime DouzeAns(const TEleve& eleve) { return DateDeQt(DateVersQt(eleve.DateNaissance).addYears(12)); }

bool TropAgePourAttestation(const TEleve& eleve) { return DouzeAns(eleve) < EncodeDate(kAnneeFiscale, 1, 1); }

std::optional<TMontantAttestation> CalculerAttestation(const TDossierAttestation& dossier,
                                                       const QString& parametre, int responsable) {
  TMontantAttestation montant;
  if (TropAgePourAttestation(dossier.Eleve)) return montant;
  const TCalcul* calcul = TrouverCalcul(parametre);
  if (calcul == nullptr) return std::nullopt;
  const int ecole = dossier.Eleve.Eleves->AnneeScolaire;
  if (ecole == kAnneeFiscale - 1)
    montant.Parties.push_back(
        Retenir(Printemps(dossier.Eleve, EncodeDate(kAnneeFiscale, 6, 30)), calcul->Printemps));
  if (ecole != kAnneeFiscale) return montant;
  if (!calcul->AutomneAvantDouze || DouzeAns(dossier.Eleve) > EncodeDate(kAnneeFiscale, 9, 1))
    montant.Parties.push_back(PartieAutomne(dossier, *calcul, responsable));
  if (dossier.Precedent != nullptr)
    montant.Parties.push_back(Retenir(Printemps(*dossier.Precedent, EncodeDate(kAnneeFiscale, 12, 31)),
                                      calcul->PrintempsPrecedent));
  return montant;
}
