#include "documents/sections.h"

#include "pupils/eleve.h"

TNoeudRapport NoeudEleve(const TEleve& eleve) {
  TNoeudRapport noeud(eleve.NomComplet());
  noeud.Valeurs.Ecrire(u"NomEleve", eleve.Nom);
  noeud.Valeurs.Ecrire(u"PrenomEleve", eleve.Prenom);
  noeud.Valeurs.Ecrire(u"Classe", eleve.LibelleClasse());
  return noeud;
}

TSection::TSection(const QString& texte, const QString& typeFrais) : Noeud(texte) {
  Noeud.Valeurs.Ecrire(u"TypeFrais", typeFrais);
}

void TSection::Ajouter(const QString& nomService, Currency montant) {
  Montrer(nomService, nomService, FormatDeuxDecimales(montant));
  Total += montant;
}

void TSection::Montrer(const QString& texte, const QString& nomService, const QString& total) {
  TNoeudRapport& ligne = Noeud.Ajouter(texte);
  ligne.Valeurs.Ecrire(u"NomService", nomService);
  ligne.Valeurs.Ecrire(u"Total", total);
}

TNoeudRapport TSection::Terminer() {
  Noeud.Valeurs.Ecrire(u"TotalFrais", FormatDeuxDecimales(Total));
  return std::move(Noeud);
}
