// The documents of the wizard.
#include "app/commandes.h"
#include "app/etiquettes_pdf.h"
#include "app/sortie_documents.h"
#include "core/conversions.h"
#include "documents/catalogue.h"
#include "documents/fiche_fiscale.h"

using namespace Qt::StringLiterals;

namespace {

void ChoisirClasses(const QStringList& noms, TChoixDocument& choix) {
  for (const QString& nom : noms) {
    const std::size_t avant = choix.Classes.size();
    for (const auto& classe : Globals.Eleves->Classes())
      if (classe->Libelle().trimmed() == nom.trimmed()) choix.Classes.push_back(classe.get());
    if (choix.Classes.size() == avant) throw Exception(u"Il n'y a pas de classe « %1 »."_s.arg(nom));
  }
}

void ChoisirEleves(const TSession& session, const QStringList& numeros, TChoixDocument& choix) {
  for (const QString& numero : numeros) choix.Eleves.push_back(&session.Eleve(numero));
}

void Choisir(const TSession& session, const TTitreDocument& document, TChoixDocument& choix) {
  const QString qui = session.UneSeule({u"tous"_s, u"eleves"_s, u"classes"_s});
  if (qui == u"eleves")
    ChoisirEleves(session, session.Option(qui).split(u',', Qt::SkipEmptyParts), choix);
  else if (qui == u"classes")
    ChoisirClasses(session.Option(qui).split(u',', Qt::SkipEmptyParts), choix);
  else
    choix.Eleves = Globals.Eleves->Tous();
  choix.TouteLEcole = qui == u"tous";
  // A year on display without pupils leaves those of the other school year.
  const bool ailleurs = document.ParAnneeRevenus && choix.TouteLEcole;
  if (choix.Eleves.empty() && choix.Classes.empty() && !ailleurs)
    throw Exception(u"Aucun élève n'a été sélectionné !"_s);
}

/// What the page of the wizard asks and says.
void ChoisirAnneeRevenus(const TSession& session, const TContexteDocument& contexte, TChoixDocument& choix) {
  if (session.A(u"annee-revenus"_s)) {
    const int annee = StrToInt(session.Option(u"annee-revenus"_s));
    QStringList connues;
    for (const int connue : AnneesRevenus(contexte)) connues += QString::number(connue);
    if (!connues.contains(QString::number(annee)))
      throw Exception(u"Il n'y a pas de revenus de %1 : les années connues sont %2."_s.arg(annee).arg(
          connues.join(u", "_s)));
    choix.AnneeRevenus = annee;
  }
  session.Dialogues.Message(PorteeFiches(contexte, choix));
}

int Document(TSession& session) {
  const QString titre = session.Arguments[0];
  TChoixDocument choix;
  const TTitreDocument* document = TrouverTitre(titre);
  if (document == nullptr) throw Exception(u"Il n'y a pas de document « %1 »."_s.arg(titre));
  if (session.A(u"annee-revenus"_s) && !document->ParAnneeRevenus)
    throw EMauvaisAppel(u"Le document « %1 » n'a pas d'option --annee-revenus."_s.arg(titre));
  session.Ouvrir();
  if (document->AvecEleves) Choisir(session, *document, choix);
  const TPeriode periode =
      document->AvecPeriode ? session.Periode() : BornesAnnee(Globals.Eleves->AnneeScolaire);
  choix.DateDebut = periode.Premier;
  choix.DateFin = periode.Dernier;
  if (session.A(u"date-paiement"_s)) {
    const TDateTime date = session.Date(u"date-paiement"_s);
    if (DemandeDatePaiement(*document, *Globals.Parametres)) choix.DatePaiement = date;
  }

  choix.Jour = session.Controleur.Horloge().Aujourdhui();
  choix.NouveauxRepas = session.A(u"nouvelle"_s);
  TEtiquettesPdf etiquettes(session.Dialogues);
  TContexteDocument contexte = ContexteDesGlobals(session.Controleur.Horloge());
  if (session.A(u"pdf"_s)) contexte.Etiquettes = &etiquettes.Etiquettes;
  if (document->ParAnneeRevenus) ChoisirAnneeRevenus(session, contexte, choix);
  const TResultat resultat = FaireDocument(contexte, *document, choix);
  return SortirDocument(session, titre, resultat, !choix.Classes.empty(), etiquettes.Document);
}

}  // namespace

std::span<const TCommandeLot> CommandesDocuments() {
  static constexpr TCommandeLot commandes[] = {
      {"document",
       "TITRE (--mois M | --du jj/mm/aaaa --au jj/mm/aaaa | --annee-scolaire) "
       "(--tous | --eleves ID,ID | --classes NOM,NOM) [--date-paiement jj/mm/aaaa] "
       "[--annee-revenus AAAA] [--jour jj/mm/aaaa] [--nouvelle] [--pdf FICHIER] [--json FICHIER]",
       1, 1, Document},
  };
  return commandes;
}
