#include "screens/meals/frm_transfert_ticket.h"

#include "application/globals.h"
#include "core/dialogues.h"

using namespace Qt::StringLiterals;

TFrmTransfertTicket::TFrmTransfertTicket(IDialogues& dialogues)
    : Eleves({{u"Nom de l'élève"_s, 260}, {u"Classe"_s, 100}}), dialogues_(dialogues) {
  for (TEleve& eleve : *Globals.Eleves) Eleves.Ajouter({eleve.NomComplet(), eleve.LibelleClasse()}, &eleve);
  Eleves.Trier(0);
  liens_ += Eleves.SurChoix.Suivre([this] { Annoncer(); });
}

QString TFrmTransfertTicket::Classe() const {
  const int ligne = Eleves.LigneCourante();
  return u"Classe de l'élève : " % (ligne < 0 ? QString() : Eleves.Texte(ligne, 1));
}

bool TFrmTransfertTicket::btnValiderClick() {
  const int ligne = Eleves.LigneCourante();
  if (ligne < 0) {
    dialogues_.Message(u"Veuillez sélectionner un élève dans la liste."_s);
    return false;
  }
  choisi_ = Eleves.Ligne(ligne).Objet.En<TEleve>();
  ResultatModal = TResultatModal::Valide;
  return Fermer();
}
