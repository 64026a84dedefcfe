#include "workflows/attestations.h"

#include <algorithm>

#include "application/globals.h"
#include "core/parametres.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// The school year that holds the spring of the tax year, seen from its autumn; for a display of another
/// year, the one before the year that is open.
int AnneePrecedente(int ecole, int anneeTravail) {
  return (ecole == kAnneeFiscale ? ecole : anneeTravail) - 1;
}

/// The day before the birthday, as short as it is: "9/3".
QString VeilleAnniversaire(const TEleve& eleve) {
  const TJour veille = DecodeDate(eleve.DateNaissance - 1);
  return QString::number(veille.Jour) % u'/' % QString::number(veille.Mois);
}

/// What is odd about a sheet that prints, whoever it is for.
QStringList RemarquesDe(const TMontantAttestation& detail) {
  QStringList remarques;
  const auto compte = [](const TPartieAttestation& p) { return p.ApresDouzeAns && p.Montant != Currency(); };
  const auto negative = [](const TPartieAttestation& p) { return p.Montant < Currency(); };
  if (std::ranges::any_of(detail.Parties, compte))
    remarques += u"des jours après les douze ans sont comptés"_s;
  if (std::ranges::any_of(detail.Parties, negative)) remarques += u"une partie du montant est négative"_s;
  return remarques;
}

/// Whether the care of the tax year goes without a sheet because the date of birth is missing.
bool SansDate(const TEleve& eleve, const TEleve* precedent) {
  const TPeriode annee{EncodeDate(kAnneeFiscale, 1, 1), EncodeDate(kAnneeFiscale, 12, 31)};
  const int ecole = eleve.Eleves->AnneeScolaire;
  if (eleve.DateNaissance != 0.0 || eleve.Categorie() == TCategorie::Personnel) return false;
  if (ecole != kAnneeFiscale) precedent = nullptr;  // the year on display counts alone
  return eleve.TotalGarderies(annee) > Currency() ||
         (precedent != nullptr && precedent->TotalGarderies(annee) > Currency());
}

/// Both parents who live apart have on their sheets what was not told apart.
bool DoubleEmploi(const TMontantAttestation& detail) {
  return std::ranges::any_of(detail.Parties, [](const TPartieAttestation& p) {
    return !p.ParResponsable && p.Montant != Currency();
  });
}

}  // namespace

TAttestations::TAttestations(const TEleves& eleves, const TParametres& parametres, int anneeTravail)
    : eleves_(eleves),
      parametre_(parametres.GetParametre(TParam::CalculAttestation)),
      anneeTravail_(anneeTravail),
      precedente_(ChargerDonneesAnnee(eleves.BaseDeDonnees(),
                                      AnneePrecedente(eleves.AnneeScolaire, anneeTravail), parametres,
                                      *Globals.TarifsGarderies)) {}

// When the first parent's part is 0, nothing is printed and the second entry is the first one's again.
std::vector<TFeuilleAttestation> TAttestations::Feuilles(const std::vector<TEleve*>& eleves,
                                                         QStringList& messages) {
  eleves_.LireFrais(eleves);
  std::vector<TEleve*> precedents;
  for (const TEleve* eleve : eleves)
    if (TEleve* precedent = precedente_->Eleves->TrouverParId(eleve->Id)) precedents.push_back(precedent);
  precedente_->Eleves->LireFrais(precedents);

  std::vector<TFeuilleAttestation> feuilles;
  const TEleve* derniere = nullptr;
  for (TEleve* eleve : eleves)
    for (int entree = 1; entree <= (eleve->FlgParentSepare ? 2 : 1); ++entree) {
      const int responsable = !eleve->FlgParentSepare ? 0 : eleve == derniere ? 2 : 1;
      feuilles.push_back(Feuille(*eleve, responsable, messages));
      if (feuilles.back().Montant != Currency()) derniere = eleve;
    }
  return feuilles;
}

TFeuilleAttestation TAttestations::Feuille(TEleve& eleve, int responsable, QStringList& messages) {
  const TEleve* precedent = precedente_->Eleves->TrouverParId(eleve.Id);
  const TDossierAttestation dossier{eleve, precedent, [&](int r) { return Mouvements(eleve, r); }};
  TFeuilleAttestation feuille;
  feuille.Eleve = &eleve;
  feuille.Responsable = responsable;
  feuille.Seconde = responsable == 2;
  const auto detail = CalculerAttestation(dossier, parametre_, responsable);
  if (detail)
    feuille.Detail = *detail;
  else
    messages += u"Le paramètre de calcul d'attestation d'impôt n'a pas été défini."_s;
  feuille.Montant = feuille.Detail.Total();
  feuille.SansDate = SansDate(eleve, precedent);
  Dater(feuille);
  if (feuille.Montant != Currency()) feuille.Remarques = RemarquesDe(feuille.Detail);
  if (feuille.Montant != Currency() && responsable == 2 && DoubleEmploi(feuille.Detail))
    feuille.Remarques += u"les deux responsables ont une attestation pour les mêmes paiements"_s;
  if (detail && responsable == 1 && feuille.Montant == Currency() &&
      CalculerAttestation(dossier, parametre_, 2)->Total() != Currency())
    feuille.Remarques +=
        u"le premier responsable n'a rien payé : pas d'attestation, bien que le second ait payé"_s;
  return feuille;
}

/// What that responsible person paid on the lines of the pupil, by movements that are known in the year.
Currency TAttestations::Mouvements(const TEleve& eleve, int responsable) {
  if (!extraits_) extraits_ = std::make_unique<TExtraits>(eleves_.BaseDeDonnees(), eleves_.AnneeScolaire);
  Currency total;
  if (const TAllFraisEleve* lignes = eleve.GetAllFrais())
    for (const TFraisEleve& ligne : *lignes) {
      const TExtrait* extrait =
          ligne.MontantVerse > Currency() ? extraits_->TrouverParId(ligne.ExtraitId) : nullptr;
      if (extrait != nullptr && extrait->TypeResponsable == responsable)
        total += ligne.FlgPart ? ligne.MontantVerse : extrait->Montant;
    }
  return total;
}

// The amounts hang on the tax year, these dates on the year that is open.
void TAttestations::Dater(TFeuilleAttestation& feuille) const {
  const TEleve& eleve = *feuille.Eleve;
  const int ecole = eleves_.AnneeScolaire;
  const bool avant = ecole == anneeTravail_ - 1;
  const QString annee = QString::number(anneeTravail_);
  const bool deuxAns = precedente_->Eleves->TrouverParId(eleve.Id) != nullptr;
  const QString debut = avant || deuxAns ? u"01/01/"_s : u"01/09/"_s;
  feuille.DateDebut = debut % (avant ? annee : QString::number(ecole));
  feuille.DateFin = (avant ? u"30/06/"_s : u"31/12/"_s) % annee;
  feuille.DateFinReel = feuille.DateFin;
  const TDateTime douze = DouzeAns(eleve);
  if (douze > EncodeDate(anneeTravail_, 12, 31)) return;
  if (!avant)
    feuille.DateFinReel = VeilleAnniversaire(eleve) % u'/' % QString::number(ecole);
  else if (douze <= EncodeDate(anneeTravail_, 6, 30))
    feuille.DateFinReel = VeilleAnniversaire(eleve) % u'/' % annee;
}
