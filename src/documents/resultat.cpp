#include "documents/resultat.h"

#include "pupils/eleves.h"
#include "report/json.h"

using namespace Qt::StringLiterals;

// The pupil may be gone with the year when somebody looks at it.
TManque::TManque(const TEleve* eleve, const QString& champ, const QString& texte, bool sansDocument)
    : Champ(champ), Texte(texte), SansDocument(sansDocument) {
  if (eleve == nullptr) return;
  EleveId = eleve->Id;
  Nom = eleve->NomComplet();
  Classe = eleve->LibelleClasse();
  AnneeScolaire = eleve->Eleves->AnneeScolaire;
}

QString TManque::Phrase() const { return EleveId != 0 ? QString(Nom % u" : " % Texte) : Texte; }

void TResultat::Ajouter(TResultat suite) {
  Messages += suite.Messages;
  for (TRapport& suivant : suite.Rapports)
    suivant.Avertissements.removeIf([this](const QString& dit) {
      return std::ranges::any_of(Rapports, [&](const TRapport& r) { return r.Avertissements.contains(dit); });
    });
  std::ranges::move(suite.Rapports, std::back_inserter(Rapports));
  std::ranges::move(suite.Manques, std::back_inserter(Manques));
  Echec = Echec || suite.Echec;
}

QByteArray TResultat::EnJson(const QString& titre) const {
  QByteArrayList messages, rapports;
  for (const QString& message : Messages) messages += TexteJson(message);
  for (const TManque& manque : Manques) messages += TexteJson(manque.Phrase());
  for (const TRapport& rapport : Rapports) rapports += rapport.EnJson();
  return "{\"titre\":" + TexteJson(titre) + ",\"messages\":[" + messages.join(',') + "],\"rapports\":[" +
         rapports.join(',') + "]}";
}

QString TexteRienAImprimer() { return u"Aucune information à imprimer"_s; }

TResultat Presenter(TRapport rapport, TArbreRapport arbre, const QString& siVide) {
  if (!arbre.empty()) return PresenterMemeVide(std::move(rapport), std::move(arbre));
  TResultat resultat;
  if (!siVide.isEmpty()) resultat.Messages += siVide;
  return resultat;
}

TResultat PresenterMemeVide(TRapport rapport, TArbreRapport arbre) {
  TResultat resultat;
  rapport.CopierArbre(std::move(arbre));
  resultat.Rapports.push_back(std::move(rapport));
  return resultat;
}
