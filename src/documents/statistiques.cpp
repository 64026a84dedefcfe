#include "documents/statistiques.h"

#include "core/formats.h"
#include "core/mois.h"
#include "core/parametres.h"
#include "documents/entete_ecole.h"
#include "pupils/eleves.h"
#include "services/liste_frais.h"

using namespace Qt::StringLiterals;

namespace {

TColonneGrille ColonneTexte(const QString& titre, int largeur) { return {titre, largeur}; }

TColonneGrille ColonneMontant(const QString& titre) { return {titre, 120, TGenre::Montant}; }

/// What every report of the statistics tells of the school.
void AjouterEcole(TRapport& rapport, const TContexteDocument& contexte, const QString& sousTitre) {
  using enum TParam;
  static constexpr TVariableParametre kVariables[] = {
      {u"AdresseEcole", RueEcole},
      {u"CPEcole", CodePostalEcole},
      {u"LocaliteEcole", LocaliteEcole},
      {u"TelEcole", TelephoneEcole},
  };
  rapport.AjouterVariable(u"NomRapportSSTitre", sousTitre);
  rapport.AjouterVariable(u"NomEcole", NomEcoleEtSite(contexte.Parametres));
  rapport.AjouterVariable(u"AnneeScolaire", AnneeCompacte(contexte.Eleves.AnneeScolaire));
  AjouterParametres(rapport, contexte.Parametres, kVariables);
}

TNoeudRapport NoeudPaiements(const TPaiementsEleve& ligne) {
  TNoeudRapport noeud(ligne.Eleve->NomComplet());
  noeud.Valeurs.Ecrire(u"NomEleve", ligne.Eleve->NomComplet());
  noeud.Valeurs.Ecrire(u"MontantTotal", FormatDeuxDecimales(ligne.Total));
  for (const TGroupeFraisDetailPaiement* detail : ligne.Details) {
    TValeurs& valeurs = noeud.Ajouter(detail->Remarque).Valeurs;
    valeurs.Ecrire(u"LibellePaiement", detail->Remarque);
    valeurs.Ecrire(u"Montant", FormatDeuxDecimales(detail->MontantVerse));
  }
  return noeud;
}

TNoeudRapport NoeudFrais(const TLigneFrais& ligne) {
  TNoeudRapport noeud(ligne.Frais->Libelle);
  noeud.Valeurs.Ecrire(u"LibelleFrais", ligne.Frais->Libelle);
  noeud.Valeurs.Ecrire(u"NombreEleves", QString::number(ligne.Eleves));
  noeud.Valeurs.Ecrire(u"MoisFrais", NomMois(ligne.Frais->Mois));
  noeud.Valeurs.Ecrire(u"CoutUnitaire", FormatDeuxDecimales(ligne.Frais->Cout));
  noeud.Valeurs.Ecrire(u"TotalFrais", FormatDeuxDecimales(ligne.Total));
  return noeud;
}

TResultat Message(const QString& texte) {
  TResultat resultat;
  resultat.Messages += texte;
  return resultat;
}

}  // namespace

TGrille GrilleImpayes() {
  TGrille grille(
      {ColonneTexte(u"Nom et prénom"_s, 280), ColonneTexte(u"Classe"_s, 100), ColonneMontant(u"Montant"_s)});
  grille.CasesACocher = true;
  return grille;
}

TGrille GrilleBalancesPositives() {
  TGrille grille({ColonneTexte(u"Nom et prénom"_s, 240), ColonneTexte(u"Classe"_s, 80),
                  ColonneMontant(u"Á rembouser"_s), ColonneTexte(u"Numéro de Compte"_s, 170),
                  ColonneTexte(u"Nom du titulaire de compte"_s, 230)});
  grille.CasesACocher = true;
  return grille;
}

TGrille GrilleFiscale() {
  return TGrille({ColonneTexte(u"Nom et prénom"_s, 280), ColonneTexte(u"Classe"_s, 100),
                  ColonneMontant(u"Montant Dû"_s), ColonneMontant(u"Montant Payé"_s)});
}

TGrille GrillePaiements() {
  return TGrille(
      {ColonneTexte(u"Nom et prénom"_s, 380), ColonneTexte(u"Classe"_s, 100), ColonneMontant(u"Montant"_s)});
}

TGrille GrilleFrais() {
  TGrille grille({ColonneTexte(u"Libellé"_s, 280),
                  {u"Nombre d'élèves"_s, 150, TGenre::Entier},
                  {u"Mois"_s, 100, TGenre::Mois},
                  ColonneMontant(u"Coût unitaire"_s),
                  ColonneMontant(u"Coût total"_s)});
  grille.CasesACocher = true;
  return grille;
}

TGrille GrilleAnnuelle() { return TGrille({ColonneTexte(u"Mois"_s, 280), ColonneMontant(u"Montant"_s)}); }

void Remplir(TGrille& grille, const std::vector<TMontantEleve>& lignes) {
  const TGrille::TLot lot(grille);
  grille.Vider();
  for (const auto& [eleve, montant] : lignes)
    grille.Ajouter({eleve->NomComplet(), eleve->LibelleClasse(), montant}, eleve);
}

void RemplirAvecCompte(TGrille& grille, const std::vector<TMontantEleve>& lignes) {
  const TGrille::TLot lot(grille);
  grille.Vider();
  for (const auto& [eleve, montant] : lignes)
    grille.Ajouter(
        {eleve->NomComplet(), eleve->LibelleClasse(), montant, eleve->NumCompte, eleve->NomTitulaireCompte},
        eleve);
}

void Remplir(TGrille& grille, const std::vector<TLigneFiscale>& lignes) {
  const TGrille::TLot lot(grille);
  grille.Vider();
  for (const auto& [eleve, du, paye] : lignes)
    grille.Ajouter({eleve->NomComplet(), eleve->LibelleClasse(), du, paye}, eleve);
}

void Remplir(TGrille& grille, const std::vector<TLigneFrais>& lignes) {
  const TGrille::TLot lot(grille);
  grille.Vider();
  for (const auto& [frais, eleves, total] : lignes)
    grille.Ajouter({frais->Libelle, eleves, frais->Mois, frais->Cout, total}, frais);
}

void Remplir(TGrille& grille, const std::vector<TPaiementsEleve>& lignes) {
  const TGrille::TLot lot(grille);
  grille.Vider();
  for (const auto& [eleve, total, details] : lignes) {
    grille.AjouterTete({eleve->NomComplet(), eleve->LibelleClasse(), total}, eleve);
    for (const TGroupeFraisDetailPaiement* detail : details)
      grille.Ajouter({detail->Remarque, {}, detail->MontantVerse}, eleve);
  }
}

void Remplir(TGrille& grille, const TReleveAnnuel& releve) {
  const TGrille::TLot lot(grille);
  grille.Vider();
  for (const auto& [mois, montant] : releve.Mois) grille.Ajouter({QString(NomMois(mois) % u" :"), montant});
  grille.Ajouter({u"Total :"_s, releve.Total});
  grille.Ajouter({u"Nombre de repas en maternelle : "_s, QString::number(releve.RepasMaternelle)});
  grille.Ajouter({u"Nombre de repas en primaire :"_s, QString::number(releve.RepasPrimaire)});
}

QString TitreImpayes(bool frais, bool services) {
  const QString quoi = frais && services ? u"services et frais"_s
                       : frais           ? u"frais"_s
                       : services        ? u"services"_s
                                         : QString();
  return u"Liste des " % quoi;
}

QString TexteCriteres(const TCriteresImpayes& criteres) {
  if (criteres.Etendue == TEtendue::Annee) return u"Année scolaire"_s;
  if (criteres.Mois == 0) return {};
  const QString mois = TexteDuMois(criteres.Mois).mid(3);  // "mois d'octobre"
  return criteres.Etendue == TEtendue::Mois ? QString(u'M' % mois.mid(1)) : QString(u"Jusqu'au " % mois);
}

QString TexteBalances(bool frais, bool services) {
  if (frais && services) return u"Services et frais"_s;
  return frais ? u"Frais"_s : services ? u"Services"_s : QString();
}

QString TextePeriode(const TPeriode& periode) {
  return u"Du " % FormatDate(periode.Premier) % u" au " % FormatDate(periode.Dernier);
}

TResultat ImprimerListe(const TContexteDocument& contexte, const QString& titre, const QString& sousTitre,
                        const TGrille& grille) {
  TRapport rapport(titre, u"RepDynamicFromListviewPortrait"_s);
  QStringList dessous{sousTitre};
  if (!grille.Filtre.isEmpty()) dessous += u"Lignes contenant « " % grille.Filtre % u" »";
  dessous.removeAll(QString());
  AjouterEcole(rapport, contexte, dessous.join(u" · "_s));
  rapport.ChargerColonnesGrille(grille);
  if (rapport.Plat().empty()) return Message(TexteRienAImprimer());
  TResultat resultat;
  resultat.Rapports.push_back(std::move(rapport));
  return resultat;
}

// The classes in their own order, each once; a pupil who has none yet stands behind them.
TResultat ImprimerPaiements(const TContexteDocument& contexte, const QString& groupe,
                            const std::vector<TPaiementsEleve>& lignes) {
  TRapport rapport(u"Relevé des paiements : " % groupe, u"RelevePaiement"_s);
  AjouterEcole(rapport, contexte, {});
  TArbreRapport arbre;
  std::vector<const TClasse*> classes;
  for (const auto& classe : contexte.Eleves.Classes()) classes.push_back(classe.get());
  classes.push_back(nullptr);
  for (const TClasse* classe : classes) {
    const QString libelle = classe != nullptr ? classe->Libelle() : QString();
    TNoeudRapport noeud(libelle);
    noeud.Valeurs.Ecrire(u"Classe", libelle);
    for (const TPaiementsEleve& ligne : lignes)
      if (ligne.Eleve->Classe == classe) noeud.Enfants.push_back(NoeudPaiements(ligne));
    if (!noeud.Enfants.empty()) arbre.push_back(std::move(noeud));
  }
  return Presenter(std::move(rapport), std::move(arbre), u"Aucun relevé à imprimer."_s);
}

TResultat ImprimerFrais(const TContexteDocument& contexte, const std::vector<TLigneFrais>& coches) {
  if (coches.empty()) return Message(u"Veuillez cocher un ou plusieurs frais dans la liste."_s);
  TRapport rapport(u"Statistique des frais"_s, u"StatistiqueFrais"_s);
  AjouterEcole(rapport, contexte, {});
  TArbreRapport arbre;
  Currency total;
  for (const TLigneFrais& ligne : coches) {
    arbre.push_back(NoeudFrais(ligne));
    total += ligne.Total;
  }
  rapport.AjouterVariable(u"TotalGeneral", FormatDeuxDecimales(total));
  return PresenterMemeVide(std::move(rapport), std::move(arbre));
}
