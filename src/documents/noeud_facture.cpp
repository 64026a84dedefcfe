#include "documents/noeud_facture.h"

#include "core/dialogues.h"
#include "core/parametres.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

QString CommunicationDuMois(TCommunicationMois generer, const TEleve& eleve, const TPeriodeDocument& periode,
                            IDialogues& dialogues) {
  const int mois = periode.MoisFacture();
  return mois == 0 ? QString() : generer(dialogues, eleve.Id, mois, periode.Annee);
}

QString TexteCommunication(const TParametres& parametres, const QString& structuree,
                           const QString& datePaiement) {
  QString texte = parametres.GetParametre(TParam::CommunicationFacture);
  texte.replace(u"[ComStructParFacture]"_s, structuree);
  if (!datePaiement.isEmpty()) texte.replace(u"[DatePaiementFacture]"_s, datePaiement);
  return texte;
}

TNoeudRapport NoeudFacture(const TEleve& eleve, Currency solde, const QString& communication) {
  TNoeudRapport noeud = NoeudEleve(eleve);
  noeud.Valeurs.Ecrire(u"SoldeFacture", FormatDeuxDecimales(solde));
  noeud.Valeurs.Ecrire(u"SoldeFacture2", FormatDeuxDecimales(solde.Absolu()));
  noeud.Valeurs.Ecrire(u"Communication", communication);
  return noeud;
}
