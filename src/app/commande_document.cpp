#include <QFileInfo>

#include "app/commandes.h"
#include "core/calendrier_scolaire.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/fichiers.h"
#include "documents/catalogue.h"
#include "documents/modeles.h"
#include "report/layout/mise_en_page.h"
#include "report/output/pdf.h"

using namespace Qt::StringLiterals;

namespace {

QString Nom(const char* option) { return QString::fromLatin1(option); }

/// The one option of these that is given. Raises Exception when there is none, or more than one.
QString UneSeule(const TSession& session, const QStringList& noms) {
  QStringList donnees;
  for (const QString& nom : noms)
    if (session.Options.isSet(nom)) donnees += nom;
  if (donnees.size() != 1) throw Exception(u"Donnez une seule des options --%1."_s.arg(noms.join(u", --"_s)));
  return donnees[0];
}

TPeriode Periode(const TSession& session) {
  const int annee = Globals.Eleves->AnneeScolaire;
  const QString choix = UneSeule(session, {Nom("mois"), Nom("du"), Nom("annee-scolaire")});
  if (choix == u"du") return {StrToDate(session.Option(Nom("du"))), StrToDate(session.Option(Nom("au")))};
  if (choix == u"annee-scolaire") return BornesAnnee(annee);
  return BornesMois(session.Mois(), annee);
}

void ChoisirClasses(const QStringList& noms, TChoixDocument& choix) {
  for (const QString& nom : noms) {
    const std::size_t avant = choix.Classes.size();
    for (const auto& classe : Globals.Eleves->Classes())
      if (classe->Libelle().trimmed() == nom.trimmed()) choix.Classes.push_back(classe.get());
    if (choix.Classes.size() == avant) throw Exception(u"Il n'y a pas de classe « %1 »."_s.arg(nom));
  }
}

void ChoisirEleves(const QStringList& numeros, TChoixDocument& choix) {
  for (const QString& numero : numeros) {
    TEleve* eleve = Globals.Eleves->TrouverParId(StrToInt(numero));
    if (eleve == nullptr) throw Exception(u"Il n'y a pas d'élève n° %1 cette année-là."_s.arg(numero));
    choix.Eleves.push_back(eleve);
  }
}

void Choisir(const TSession& session, TChoixDocument& choix) {
  const QString qui = UneSeule(session, {Nom("tous"), Nom("eleves"), Nom("classes")});
  if (qui == u"eleves")
    ChoisirEleves(session.Option(qui).split(u',', Qt::SkipEmptyParts), choix);
  else if (qui == u"classes")
    ChoisirClasses(session.Option(qui).split(u',', Qt::SkipEmptyParts), choix);
  else
    for (TEleve& eleve : *Globals.Eleves) choix.Eleves.push_back(&eleve);
  if (choix.Eleves.empty() && choix.Classes.empty()) throw Exception(u"Aucun élève n'a été sélectionné !"_s);
}

QString TexteDefaut(const QString& modele, const TDefaut& defaut) {
  QStringList ou;
  for (const QString& nom : {modele, defaut.Bande, defaut.Objet})
    if (!nom.isEmpty()) ou += nom;
  return ou.join(u", "_s) + u" : "_s + defaut.Message;
}

/// Raises Exception when there is no template yet.
TDocumentPrepare Preparer(TSession& session, const TRapport& rapport, const TImpression& impression) {
  const auto modele = ModeleDocument(rapport.Modele(), DossierModeles(session.Controleur.Reglages()));
  if (!modele)
    throw Exception(u"Le document « %1 » n'a pas encore de modèle (« %2 ») : demandez-le avec --json."_s.arg(
        rapport.Titre(), rapport.Modele()));
  TDocumentPrepare document = MettreEnPage(rapport, *modele, impression);
  for (const TDefaut& defaut : document.Defauts)
    session.Dialogues.Message(TexteDefaut(rapport.Modele(), defaut));
  return document;
}

/// Raises Exception when one file would take the place of the other. A device takes both.
void VerifierFichiers(const TSession& session) {
  if (!session.Options.isSet(Nom("pdf")) || !session.Options.isSet(Nom("json"))) return;
  const QFileInfo pdf(session.Option(Nom("pdf"))), json(session.Option(Nom("json")));
  const auto chemin = [](const QFileInfo& fichier) {
    const QString dossier = QFileInfo(fichier.absolutePath()).canonicalFilePath();
    return fichier.exists() ? fichier.canonicalFilePath() : dossier % u'/' % fichier.fileName();
  };
  const bool appareil = pdf.exists() && !pdf.isFile();
  if (!appareil && chemin(pdf) == chemin(json))
    throw Exception(u"Donnez deux fichiers différents à --pdf et à --json."_s);
}

/// All reports in one file, with a bookmark a pupil; false when there was nothing to write.
bool MettreEnPdf(TSession& session, const QString& titre, const TChoixDocument& choix,
                 const TResultat& resultat) {
  const TImpression impression{session.Controleur.Horloge().Maintenant(), !choix.Classes.empty()};
  std::vector<TDocumentPrepare> documents;
  for (const TRapport& rapport : resultat.Rapports)
    documents.push_back(Preparer(session, rapport, impression));
  std::erase_if(documents, [](const TDocumentPrepare& document) { return document.Pages.empty(); });
  if (documents.empty()) {
    if (!resultat.Echec)
      session.Dialogues.Message(u"Il n'y a rien à imprimer : le fichier PDF n'est pas écrit."_s);
    return false;
  }
  std::vector<const TDocumentPrepare*> tous;
  for (const TDocumentPrepare& document : documents) tous.push_back(&document);
  EcrirePdf(tous, titre, Globals.Parametres->GetParametre(1), session.Option(Nom("pdf")));
  return true;
}

}  // namespace

int CommandeDocument(TSession& session) {
  const QString titre = session.Arguments[0];
  TChoixDocument choix;
  choix.Indice = IndiceTitre(titre);
  if (choix.Indice < 0) throw Exception(u"Il n'y a pas de document « %1 »."_s.arg(titre));
  VerifierFichiers(session);
  session.Ouvrir();
  Choisir(session, choix);
  const bool avecPeriode = TitresDocuments()[static_cast<std::size_t>(choix.Indice)].AvecPeriode;
  const TPeriode periode = avecPeriode ? Periode(session) : BornesAnnee(Globals.Eleves->AnneeScolaire);
  choix.DateDebut = periode.Premier;
  choix.DateFin = periode.Dernier;
  if (session.Options.isSet(Nom("date-paiement"))) {
    const TDateTime date = StrToDate(session.Option(Nom("date-paiement")));
    if (DemandeDatePaiement(choix.Indice, *Globals.Parametres)) choix.DatePaiement = date;
  }

  const TResultat resultat = FaireDocument(ContexteDesGlobals(), choix);
  for (const QString& message : resultat.Messages) session.Dialogues.Message(message);
  if (session.Options.isSet(Nom("json"))) EcrireFichier(session.Option(Nom("json")), resultat.EnJson(titre));
  const bool imprime = !session.Options.isSet(Nom("pdf")) || MettreEnPdf(session, titre, choix, resultat);
  return resultat.Echec || !imprime ? 1 : 0;
}
