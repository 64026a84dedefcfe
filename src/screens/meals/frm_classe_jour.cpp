#include "screens/meals/frm_classe_jour.h"

#include "documents/cuisine.h"
#include "pupils/eleves.h"
#include "screens/documents/imprimeur.h"

using namespace Qt::StringLiterals;

TFrmClasseJour::TFrmClasseJour(TContexteEcran& contexte, const TGenerationRepas& generation,
                               std::vector<TColonneGrille> colonnes)
    : Grille(std::move(colonnes)), contexte_(contexte), generation_(generation) {}

bool TFrmClasseJour::DatesVisibles() const { return !Globals.ModeProfesseur; }

TClasse* TFrmClasseJour::Classe() const {
  return classe_ > 0 ? &Globals.Eleves->GetClasse(classe_ - 1) : nullptr;
}

QString TFrmClasseJour::NomClasse() const { return Classe() != nullptr ? Classe()->Libelle() : QString(); }

TEleve* TFrmClasseJour::Courant() const {
  const int ligne = Grille.LigneCourante();
  return ligne < 0 ? nullptr : Grille.Ligne(ligne).Objet.En<TEleve>();
}

QString TFrmClasseJour::NomEleve() const {
  const TEleve* eleve = Courant();
  return eleve != nullptr ? eleve->NomComplet() : QString();
}

std::vector<TCompteurRepas> TFrmClasseJour::Compteurs() const {
  return CompteursRepas(Classe(), jour_.Jour(), generation_);
}

bool TFrmClasseJour::RecevoirMessage(const TMessage& message) {
  if (message.Code != TCodeMessage::Imprimer) return false;
  Imprimer();
  return true;
}

void TFrmClasseJour::Imprimer() {
  const TClasse* classe = Classe();
  if (classe == nullptr) {
    contexte_.Dialogues().Message(u"Veuillez choisir une classe dans la liste"_s);
    return;
  }
  TImprimeur(contexte_, {}).Faire([&](const TContexteDocument& contexte) {
    return ChoixDeRepas(contexte, *classe, jour_.Jour());
  });
}
