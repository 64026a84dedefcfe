#include "screens/pupils/fiche_eleve.h"

#include <QStringList>
#include <algorithm>

#include "core/formats.h"
#include "documents/periode.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

TFicheEleve TFicheEleve::De(const TEleve& eleve) {
  TFicheEleve fiche;
  fiche.NomComplet = eleve.NomComplet();
  fiche.Matricule = eleve.Matricule;
  fiche.LibelleClasse = eleve.LibelleClasse().trimmed();
  fiche.LibelleImplantation = eleve.LibelleImplantation();
  fiche.DateNaissance = FormatDate(eleve.DateNaissance);
  fiche.Responsables = {{{eleve.NomResponsable, eleve.PrenomResponsable, eleve.Adresse, eleve.Numero,
                          IntOuVide(eleve.CodePostal), eleve.Localite},
                         {eleve.NomResponsable2, eleve.PrenomResponsable2, eleve.Adresse2, eleve.Numero2,
                          IntOuVide(eleve.CodePostal2), eleve.Localite2}}};
  fiche.NumCompte = eleve.NumCompte;
  fiche.NomTitulaireCompte = eleve.NomTitulaireCompte;
  fiche.Flg2eEnfant = eleve.Flg2eEnfant;
  fiche.Flg3eEnfant = eleve.Flg3eEnfant;
  fiche.FlgFactureDetail = eleve.FlgFactureDetail;
  fiche.FlgParentSepare = eleve.FlgParentSepare;
  fiche.FlgRadie = eleve.FlgRadie;
  fiche.FlgImpotRespons2 = eleve.FlgImpotRespons2;
  return fiche;
}

QString TFicheEleve::SousTitre() const {
  QStringList morceaux{LibelleClasse, LibelleImplantation};
  if (!Matricule.isEmpty()) morceaux += u"Matricule " % Matricule;
  morceaux.removeAll(QString());
  return morceaux.join(u"  ·  "_s);
}

bool TGroupeMois::Tous() const {
  return std::ranges::all_of(Mois, [](bool coche) { return coche; });
}

std::array<TGroupeMois, 3> GroupesMois() {
  return {{{TTypeMarque::Midi, u"Rentre à son domicile pendant midi"_s},
           {TTypeMarque::Etude, u"Participe à l'étude"_s},
           {TTypeMarque::Forfait, u"Paiement forfaitaire"_s}}};
}

void LireMarques(std::array<TGroupeMois, 3>& groupes, const TPresencesParticulieres& marques, int eleve) {
  for (TGroupeMois& groupe : groupes)
    for (std::size_t i = 0; i < kMoisFacturation.size(); ++i)
      groupe.Mois[i] = marques.Marque(groupe.Type, eleve, kMoisFacturation[i]) != nullptr;
}
