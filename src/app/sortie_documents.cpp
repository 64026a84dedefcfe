#include "app/sortie_documents.h"

#include <QFileInfo>
#include <QMap>
#include <filesystem>

#include "core/exceptions.h"
#include "core/fichiers.h"
#include "documents/modeles.h"
#include "report/layout/mise_en_page.h"
#include "report/output/pdf.h"

using namespace Qt::StringLiterals;

namespace {

QString TexteDefaut(const QString& modele, const TDefaut& defaut) {
  QStringList ou;
  for (const QString& nom : {modele, defaut.Bande, defaut.Objet})
    if (!nom.isEmpty()) ou += nom;
  return ou.join(u", "_s) + u" : "_s + defaut.Message;
}

void DireDefauts(const TSession& session, const QString& modele, const TDocumentPrepare& document) {
  for (const TDefaut& defaut : document.Defauts) session.Dialogues.Message(TexteDefaut(modele, defaut));
}

/// Raises Exception when there is no template yet.
TDocumentPrepare Preparer(TSession& session, const TRapport& rapport, const TImpression& impression) {
  const auto modele = ModeleDocument(rapport.Modele(), DossierModeles(session.Controleur.Reglages()));
  if (!modele)
    throw Exception(u"Le document « %1 » n'a pas encore de modèle (« %2 ») : demandez-le avec --json."_s.arg(
        rapport.Titre(), rapport.Modele()));
  TDocumentPrepare document = MettreEnPage(rapport, *modele, impression);
  DireDefauts(session, rapport.Modele(), document);
  return document;
}

/// All reports in one file, with a bookmark a pupil; false when there was nothing to write.
bool MettreEnPdf(TSession& session, const QString& titre, const TResultat& resultat, bool parClasses,
                 const TDocumentPrepare& prets) {
  const TImpression impression{session.Controleur.Horloge().Maintenant(), parClasses};
  std::vector<TDocumentPrepare> documents;
  for (const TRapport& rapport : resultat.Rapports)
    documents.push_back(Preparer(session, rapport, impression));
  DireDefauts(session, {}, prets);
  documents.push_back(prets);
  std::erase_if(documents, [](const TDocumentPrepare& document) { return document.Pages.empty(); });
  if (documents.empty()) {
    if (!resultat.Echec)
      session.Dialogues.Message(u"Il n'y a rien à imprimer : le fichier PDF n'est pas écrit."_s);
    return false;
  }
  std::vector<const TDocumentPrepare*> tous;
  for (const TDocumentPrepare& document : documents) tous.push_back(&document);
  EcrirePdf(tous, titre, Globals.Parametres->GetParametre(TParam::NomEcole), session.Option(u"pdf"_s));
  return true;
}

/// Where what is written under that name lands, through links; "" for no name.
QString CheminReel(const QString& nom) {
  std::error_code faute;
  const std::filesystem::path chemin =
      std::filesystem::weakly_canonical(QFileInfo(nom).absoluteFilePath().toStdString(), faute);
  return nom.isEmpty() ? QString() : QString::fromStdString(chemin.string());
}

}  // namespace

void VerifierFichiers(const TSession& session) {
  QMap<QString, QString> options{{CheminReel(session.Base.FichierLocal()), {}}};  // by the path of their file
  for (const QString& option : {u"pdf"_s, u"json"_s, u"export"_s}) {
    if (!session.A(option)) continue;
    const QString chemin = CheminReel(session.Options.value(option));
    const auto autre = options.constFind(chemin);
    if (autre == options.constEnd())
      options.insert(chemin, option);
    else if (autre->isEmpty())
      throw Exception(u"--%1 nomme le fichier de la base de données."_s.arg(option));
    else
      throw Exception(u"Donnez deux fichiers différents à --%1 et à --%2."_s.arg(*autre, option));
  }
}

int SortirDocument(TSession& session, const QString& titre, const TResultat& resultat, bool parClasses,
                   const TDocumentPrepare& prets) {
  for (const QString& message : resultat.Messages) session.Dialogues.Message(message);
  for (const TManque& manque : resultat.Manques) session.Dialogues.Message(manque.Phrase());
  if (session.A(u"json"_s)) EcrireFichier(session.Option(u"json"_s), resultat.EnJson(titre));
  const bool imprime = !session.A(u"pdf"_s) || MettreEnPdf(session, titre, resultat, parClasses, prets);
  return resultat.Echec || !imprime ? 1 : 0;
}
