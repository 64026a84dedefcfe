#include "report/parcours.h"

int TParcours::Niveau(int indice) const {
  const auto place = static_cast<std::size_t>(indice);
  return place < rapport_.Plat().size() ? rapport_.Plat()[place].Niveau : -1;
}

int TParcours::NombreEnfants(int indice) const {
  const auto& place = rapport_.Plat()[static_cast<std::size_t>(indice)];
  return static_cast<int>(place.Noeud->Enfants.size());
}

void TParcours::Premier(TJeu jeu) {
  Etat(jeu).Enregistrement = 0;
  switch (jeu) {
    case TJeu::Maitre:
      return PremierMaitre();
    case TJeu::Detail:
      return PremierDetail();
    case TJeu::SousDetail:
      return PremierSousDetail();
    case TJeu::Colonne:
      return;
  }
}

void TParcours::PremierMaitre() {
  curseur_ = 0;
  Etat(TJeu::Maitre).NombreLignes = static_cast<int>(rapport_.Arbre().size());
  if (rapport_.ModeColonnes()) Etat(TJeu::Colonne).NombreLignes = rapport_.NombreColonnes() - 1;
}

void TParcours::PremierDetail() {
  Etat(TJeu::Detail).NombreLignes = 0;
  Etat(TJeu::SousDetail).NombreLignes = 0;
  if (Niveau(curseur_) != 0) return;
  Etat(TJeu::Detail).NombreLignes = NombreEnfants(curseur_);
  if (NombreEnfants(curseur_) > 0) ++curseur_;
}

void TParcours::PremierSousDetail() {
  TEtat& etat = Etat(TJeu::SousDetail);
  // An engine that asks the subdetails before the details gets those of the first detail.
  if (Niveau(curseur_) == 0 && Niveau(curseur_ + 1) == 1) etat.NombreLignes = NombreEnfants(curseur_ + 1);
  if (Niveau(curseur_) == 1 && NombreEnfants(curseur_) > 0) etat.NombreLignes = NombreEnfants(curseur_);
  if (etat.NombreLignes > 0) ++curseur_;
}

void TParcours::Suivant(TJeu jeu) {
  ++Etat(jeu).Enregistrement;
  switch (jeu) {
    case TJeu::Maitre:
      Etat(TJeu::Detail).NombreLignes = 0;
      ++curseur_;
      return;
    case TJeu::Detail:
      Etat(TJeu::SousDetail).NombreLignes = 0;
      if (!Fini(jeu)) ++curseur_;
      return;
    case TJeu::SousDetail:
      if (!Fini(jeu)) ++curseur_;
      return;
    case TJeu::Colonne:
      return;
  }
}
