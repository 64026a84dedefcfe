#include "workflows/professeurs.h"

#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

const QString kProfesseurs = u"PROFESSEURS"_s;

}  // namespace

bool TProfesseurs::EstProfesseur(const TEleve& eleve) {
  return eleve.Classe != nullptr && eleve.Classe->CodeClasse == kProfesseurs;
}

QString TProfesseurs::Ajouter(const QString& nom, const QString& prenom) {
  TEleves& eleves = *Globals.Eleves;
  auto nouveau = std::make_unique<TEleve>();
  nouveau->Nom = nom;
  nouveau->Prenom = prenom;
  TEleve& professeur = eleves.AddEleve(std::move(nouveau));
  try {
    eleves.Save();
  } catch (...) {  // a later save must not try it again
    eleves.RemoveEleve(professeur);
    throw;
  }
  if (professeur.Id == -1) {
    eleves.RemoveEleve(professeur);
    return {};
  }
  Inscrire(professeur);
  const QString complet = professeur.NomComplet();
  controleur_.ChargerAnnee(Globals.AnneeScolaire);
  return complet;
}

// The pupils of an earlier year on display would enrol it in that year, so the enrolment goes through
// the enrolments of the working year.
void TProfesseurs::Inscrire(TEleve& professeur) {
  TElevesClasses(controleur_.Base(), Globals.AnneeScolaire)
      .Inscrire(professeur.Id, kProfesseurs, Globals.AnneeScolaire, {}, {});
  professeur.Matricule = u"000" % QString::number(professeur.Id);
  Globals.Eleves->AddEleve(professeur);
  Globals.Eleves->Save();
}

void TProfesseurs::Supprimer(TEleve& professeur) {
  Globals.Eleves->RemoveEleve(professeur);
  Globals.Eleves->Save();
}
