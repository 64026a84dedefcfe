#include "documents/sections.h"

#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

QString Baliser(const QString& texte, QStringView balise) {
  return u'<' % balise % u'>' % texte % u"</" % balise % u'>';
}

}  // namespace

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

void TSection::Ajouter(const QString& texte, const QString& nomService, Currency montant) {
  Montrer(texte, nomService, FormatDeuxDecimales(montant));
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

TNoeudRapport TSection::TerminerSousTotal() {
  if (Noeud.Enfants.empty()) Montrer(u"Néant"_s, u"Néant"_s, u"0"_s);
  return Terminer(u"Sous-total"_s, u"i");
}

TNoeudRapport TSection::TerminerSolde() { return Terminer(u"SOLDE"_s, u"b"); }

TNoeudRapport TSection::Terminer(const QString& titre, QStringView balise) {
  Noeud.Valeurs.Ecrire(u"TitreTotal", Baliser(titre, balise));
  Noeud.Valeurs.Ecrire(u"TotalFrais", Baliser(FormatDeuxDecimales(Total), balise));
  return std::move(Noeud);
}
