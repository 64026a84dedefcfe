#include "workflows/professeurs.h"

#include "core/exceptions.h"
#include "core/transaction_commune.h"
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
    TTransactionCommune ensemble(controleur_.Base());
    eleves.Save();
    if (professeur.Id == -1) {
      eleves.RemoveEleve(professeur);
      return {};
    }
    Inscrire(professeur);
    ensemble.Valider();
  } catch (...) {  // he has no row, whatever was written, and a later save must not try him again
    eleves.Forget(professeur);
    throw;
  }
  const QString complet = professeur.NomComplet();
  controleur_.ChargerAnnee(Globals.AnneeScolaire);
  return complet;
}

// The pupils of an earlier year on display would enrol it in that year, so the enrolment goes through
// the enrolments of the working year.
void TProfesseurs::Inscrire(TEleve& professeur) {
  TElevesClasses inscriptions(controleur_.Base(), Globals.AnneeScolaire);
  inscriptions.Inscrire(professeur.Id, kProfesseurs, Globals.AnneeScolaire, {}, {});
  if (!inscriptions.EstInscrit(professeur.Id, Globals.AnneeScolaire))
    throw Exception(u"Le professeur n'a pas pu être inscrit : rien n'a été enregistré."_s);
  professeur.Matricule = u"000" % QString::number(professeur.Id);
  Globals.Eleves->AddEleve(professeur);
  Globals.Eleves->Save();
}

void TProfesseurs::Supprimer(TEleve& professeur) {
  Globals.Eleves->RemoveEleve(professeur);
  Globals.Eleves->Save();
}
