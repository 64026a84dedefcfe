// The documents of the wizard.
#include "app/commandes.h"
#include "app/etiquettes_pdf.h"
#include "app/sortie_documents.h"
#include "core/exceptions.h"
#include "documents/catalogue.h"

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

void Choisir(const TSession& session, TChoixDocument& choix) {
  const QString qui = session.UneSeule({u"tous"_s, u"eleves"_s, u"classes"_s});
  if (qui == u"eleves")
    ChoisirEleves(session, session.Option(qui).split(u',', Qt::SkipEmptyParts), choix);
  else if (qui == u"classes")
    ChoisirClasses(session.Option(qui).split(u',', Qt::SkipEmptyParts), choix);
  else
    choix.Eleves = Globals.Eleves->Tous();
  if (choix.Eleves.empty() && choix.Classes.empty()) throw Exception(u"Aucun élève n'a été sélectionné !"_s);
}

int Document(TSession& session) {
  const QString titre = session.Arguments[0];
  TChoixDocument choix;
  const TTitreDocument* document = TrouverTitre(titre);
  if (document == nullptr) throw Exception(u"Il n'y a pas de document « %1 »."_s.arg(titre));
  session.Ouvrir();
  if (document->AvecEleves) Choisir(session, choix);
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
  const TResultat resultat = FaireDocument(contexte, *document, choix);
  return SortirDocument(session, titre, resultat, !choix.Classes.empty(), etiquettes.Document);
}

}  // namespace

std::span<const TCommandeLot> CommandesDocuments() {
  static constexpr TCommandeLot commandes[] = {
      {"document",
       "TITRE (--mois M | --du jj/mm/aaaa --au jj/mm/aaaa | --annee-scolaire) "
       "(--tous | --eleves ID,ID | --classes NOM,NOM) [--date-paiement jj/mm/aaaa] "
       "[--jour jj/mm/aaaa] [--nouvelle] [--pdf FICHIER] [--json FICHIER]",
       1, 1, Document},
  };
  return commandes;
}
