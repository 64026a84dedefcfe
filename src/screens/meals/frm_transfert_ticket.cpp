#include "screens/meals/frm_transfert_ticket.h"

#include "application/globals.h"

using namespace Qt::StringLiterals;

TFrmTransfertTicket::TFrmTransfertTicket() : Eleves({{u"Nom de l'élève"_s, 260}, {u"Classe"_s, 100}}) {
  for (TEleve& eleve : *Globals.Eleves) Eleves.Ajouter({eleve.NomComplet(), eleve.LibelleClasse()}, &eleve);
  Eleves.Trier(0);
  liens_ += Eleves.SurChoix.Suivre([this] { Annoncer(); });
}

QString TFrmTransfertTicket::Classe() const {
  const int ligne = Eleves.LigneCourante();
  return ligne < 0 ? QString() : u"Classe de l'élève : " % Eleves.Texte(ligne, 1);
}

void TFrmTransfertTicket::btnValiderClick() {
  const int ligne = Eleves.LigneCourante();
  choisi_ = ligne < 0 ? nullptr : Eleves.Ligne(ligne).Objet.En<TEleve>();
  ResultatModal = choisi_ != nullptr ? TResultatModal::Valide : TResultatModal::Annule;
  Fermer();
}
