#pragma once
#include "documents/contexte.h"
#include "documents/resultat.h"
#include "forms/grille.h"
#include "workflows/statistiques.h"

// The lists of the statistics as they show and print. The object of a row is its TEleve, or its TFrais.

TGrille GrilleImpayes();
TGrille GrilleBalancesPositives();
TGrille GrilleFiscale();
/// A head a pupil, a row a payment.
TGrille GrillePaiements();
TGrille GrilleFrais();
TGrille GrilleAnnuelle();

void Remplir(TGrille& grille, const std::vector<TMontantEleve>& lignes);
/// With the account: rows of the positive balances.
void RemplirAvecCompte(TGrille& grille, const std::vector<TMontantEleve>& lignes);
void Remplir(TGrille& grille, const std::vector<TLigneFiscale>& lignes);
void Remplir(TGrille& grille, const std::vector<TLigneFrais>& lignes);
void Remplir(TGrille& grille, const std::vector<TPaiementsEleve>& lignes);
void Remplir(TGrille& grille, const TReleveAnnuel& releve);

/// "Liste des services et frais", by what counts.
QString TitreImpayes(bool frais, bool services);
/// The criteria in words: "Jusqu'au mois d'octobre".
QString TexteCriteres(const TCriteresImpayes& criteres);

/// "Services et frais"; "" when nothing counts.
QString TexteBalances(bool frais, bool services);
/// "Du 01/09/2016 au 30/06/2017"
QString TextePeriode(const TPeriode& periode);

/// The list as it stands; when it has no row, only the message that there is nothing to print.
TResultat ImprimerListe(const TContexteDocument& contexte, const QString& titre, const QString& sousTitre,
                        const TGrille& grille);
/// "Relevé des paiements : " and the group, by class.
TResultat ImprimerPaiements(const TContexteDocument& contexte, const QString& groupe,
                            const std::vector<TPaiementsEleve>& lignes);
/// "Statistique des frais" of the ticked fees; without one only the message that asks for it.
TResultat ImprimerFrais(const TContexteDocument& contexte, const std::vector<TLigneFrais>& coches);
