#include "documents/fiche_fiscale.h"

#include <numeric>

#include "core/accord.h"
#include "core/formats.h"
#include "core/mois.h"
#include "core/numero_entreprise.h"
#include "core/numero_national.h"
#include "core/parametres.h"
#include "documents/catalogue.h"
#include "documents/fiscalite.h"
#include "documents/sections.h"
#include "pupils/eleves.h"
#include "pupils/fiches_fiscales.h"
#include "workflows/fiches_fiscales.h"

using namespace Qt::StringLiterals;

namespace {

TNoeudRapport NoeudPeriode(const TPeriodeGarde& periode) {
  TNoeudRapport noeud;
  noeud.Texte = FormatDate(periode.Debut);
  noeud.Valeurs.Ecrire(u"PeriodeDu", FormatDate(periode.Debut));
  noeud.Valeurs.Ecrire(u"PeriodeAu", FormatDate(periode.Fin));
  noeud.Valeurs.Ecrire(u"Jours", QString::number(periode.Jours));
  noeud.Valeurs.Ecrire(u"Tarif", FormatDeuxDecimales(periode.Tarif()));
  noeud.Valeurs.Ecrire(u"MontantPeriode", FormatDeuxDecimales(periode.Montant));
  return noeud;
}

int TotalJours(const TFicheFiscale& fiche) {
  return std::accumulate(fiche.Periodes.begin(), fiche.Periodes.end(), 0,
                         [](int jours, const TPeriodeGarde& periode) { return jours + periode.Jours; });
}

TNoeudRapport NoeudFiche(const TFicheFiscale& fiche, int numero, const TReglesFiscales& regles) {
  const TEleve& eleve = *fiche.Eleve;
  const bool second = fiche.Responsable == 2;
  TNoeudRapport noeud = NoeudEleve(eleve);
  TValeurs& valeurs = noeud.Valeurs;
  valeurs.Ecrire(u"NumFiche", QString::number(numero));
  valeurs.Ecrire(u"DateNaissanceEleve", FormatDate(eleve.DateNaissance));
  valeurs.Ecrire(u"NumNationalEleve", NumeroNationalPresente(eleve.NumNational));
  EcrireResponsable(eleve, second, valeurs);
  valeurs.Ecrire(u"NumNationalResponsable", NumeroNationalPresente(second ? eleve.NumNationalResponsable2
                                                                          : eleve.NumNationalResponsable));
  valeurs.Ecrire(u"AgeLimite", QString::number(eleve.FlgHandicap ? regles.AgeHandicap : regles.Age));
  valeurs.Ecrire(u"TotalJours", QString::number(TotalJours(fiche)));
  valeurs.Ecrire(u"Montant", FormatDeuxDecimales(fiche.Montant));
  for (const TPeriodeGarde& periode : fiche.Periodes) noeud.Enfants.push_back(NoeudPeriode(periode));
  return noeud;
}

void AjouterAnnee(TRapport& rapport, const TFichesFiscales& fiches) {
  const Currency maximum = fiches.Regles.MaximumParJour;
  rapport.AjouterVariable(u"AnneeRevenus", QString::number(fiches.Annee));
  rapport.AjouterVariable(u"MaximumParJour",
                          maximum == Currency() ? QString() : FormatDeuxDecimales(maximum));
}

/// What the sheets lack of the school and of the year, whoever they are for.
void DireEcole(const TRapport& rapport, const TFichesFiscales& fiches, TResultat& resultat) {
  const auto dire = [&](const QString& texte, const QString& champ = u"edNumeroEntreprise"_s) {
    resultat.Manques.insert(resultat.Manques.begin(), TManque(nullptr, champ, texte, false));
  };
  const QString numero = rapport.Variables().Valeur(u"NumEntreprise");
  if (numero.isEmpty())
    dire(u"le numéro d'entreprise de l'école manque (Mon école, « N° d'entreprise »)"_s);
  else if (!NumeroEntrepriseValide(numero))
    dire(u"le numéro d'entreprise de l'école, « %1 », est incorrect (Mon école)"_s.arg(numero));
  if (fiches.Regles.MaximumParJour == Currency())
    dire(u"le maximum par jour de %1 est inconnu du programme : vérifiez-le"_s.arg(fiches.Annee), {});
}

int AnneeOuUsuelle(const TContexteDocument& contexte, int annee) {
  return annee != 0 ? annee : AnneeRevenusUsuelle(contexte);
}

/// "3 élèves de 2025 - 2026 qui ne sont pas en 2026 - 2027"
QString ElevesHorsAnnee(qint64 nombre, int affichee, int annee) {
  QStringList autres;
  for (const int ecole : {annee - 1, annee})
    if (ecole != affichee) autres += AnneeEnTexte(ecole);
  return CompterEleves(nombre) % u" de " % autres.join(u" ou "_s) %
         Accorder(nombre, u" qui n'est pas en "_s, u" qui ne sont pas en "_s) % AnneeEnTexte(affichee);
}

}  // namespace

int AnneeRevenusUsuelle(const TContexteDocument& contexte) {
  return AnneeRevenus(contexte.Eleves.AnneeScolaire, contexte.AnneeTravail, contexte.Aujourdhui);
}

std::vector<int> AnneesRevenus(const TContexteDocument& contexte) {
  return AnneesRevenus(contexte.Eleves.BaseDeDonnees(), AnneeRevenusUsuelle(contexte), contexte.Aujourdhui);
}

QString PorteeFiches(const TContexteDocument& contexte, const TChoixDocument& choix) {
  const int annee = AnneeOuUsuelle(contexte, choix.AnneeRevenus);
  const int affichee = contexte.Eleves.AnneeScolaire;
  const TElevesHorsAnnee horsAnnee(contexte.Eleves, annee);
  const auto compris = std::ssize(horsAnnee.Cles(choix.Classes, choix.TouteLEcole));
  const auto reste = std::ssize(horsAnnee.Cles({}, true)) - compris;
  QStringList phrases{u"Garde du 1er janvier au 31 décembre %1."_s.arg(annee)};
  if (compris > 0) phrases += u"Compris aussi : " % ElevesHorsAnnee(compris, affichee, annee) % u'.';
  if (reste > 0)
    phrases += u"Pas compris : " % ElevesHorsAnnee(reste, affichee, annee) %
               Accorder(reste, u" ; il s'imprime"_s, u" ; ils s'impriment"_s) %
               u" quand toute l'école est choisie.";
  if (compris + reste == 0)
    phrases += u"Tous les enfants inscrits cette année-là sont en %1."_s.arg(AnneeEnTexte(affichee));
  return phrases.join(u' ');
}

// As in every document, who was struck off is printed alone only; here he must not be forgotten.
TResultat FicheFiscale(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  TRapport rapport(u"Fiche fiscale 281.86"_s, u"FicheFiscale"_s);
  const int annee = AnneeOuUsuelle(contexte, demande.AnneeRevenus);
  TFichesFiscales fiches(contexte.Eleves, contexte.Parametres, annee);
  const TElevesChoisis eleves = fiches.AvecHorsAnnee(
      demande.Eleves, TElevesHorsAnnee(contexte.Eleves, annee).Cles(demande.Classes, demande.TouteLEcole));
  TFichesNumerotees numeros(contexte.Eleves.BaseDeDonnees(), fiches.Annee);
  TResultat resultat;
  TArbreRapport arbre;
  for (const TFicheFiscale& fiche : fiches.Fiches(eleves)) {
    if (fiche.Eleve->FlgRadie && eleves.size() > 1) {
      resultat.Manques.push_back({fiche.Eleve, u"cbEleveRadie"_s,
                                  u"élève radié : choisissez-le seul pour imprimer sa fiche"_s, true});
      continue;
    }
    arbre.push_back(NoeudFiche(fiche, numeros.Numero(fiche.Eleve->Id, fiche.Responsable), fiches.Regles));
  }
  for (const TManqueFiche& manque : fiches.Manques())
    resultat.Manques.push_back({manque.Eleve, manque.Champ, manque.Texte, manque.SansFiche});
  AjouterSignataire(rapport, contexte);
  AjouterAnnee(rapport, fiches);
  rapport.AjouterVariable(
      u"NumEntreprise", NumeroEntreprisePresente(contexte.Parametres.GetParametre(TParam::NumeroEntreprise)));
  if (!resultat.Manques.empty() || !arbre.empty()) DireEcole(rapport, fiches, resultat);
  if (fiches.Annee >= DecodeDate(contexte.Aujourdhui).Annee && !arbre.empty())
    resultat.Messages +=
        u"L'année %1 n'est pas finie : ces fiches ne sont pas complètes."_s.arg(fiches.Annee);
  const QString siVide = resultat.Manques.empty() ? TexteRienAImprimer() : QString();
  resultat.Ajouter(Presenter(std::move(rapport), std::move(arbre), siVide));
  return resultat;
}
