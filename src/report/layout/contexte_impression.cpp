#include "report/layout/contexte_impression.h"

#include "core/formats.h"

using namespace Qt::StringLiterals;

TContexteImpression::TContexteImpression(const TRapport& rapport, const TModele& modele,
                                         const TImpression& impression, std::vector<TDefaut>& defauts)
    : Rapport(rapport),
      Modele(modele),
      Impression(impression),
      Etats(modele, [this](const QString& nom) { return Chercher(nom, false); }),
      defauts_(defauts) {
  if (modele.Script) execution_.emplace(*modele.Script, Etats);
}

std::optional<QString> TContexteImpression::ValeurMoteur(QStringView nom, bool marques) const {
  const auto est = [nom](QStringView sien) { return nom.compare(sien, Qt::CaseInsensitive) == 0; };
  const TDateTime instant = Impression.Instant;
  if (est(u"DATE")) return FormatDate(instant);
  if (est(u"TIME")) return FormatHeureCourte(instant);
  if (est(u"LINE#") || est(u"CURRENT#")) return QString::number(Compteurs.Ligne);
  if (est(u"LINETHROUGH#")) return QString::number(Compteurs.LigneTotale);
  if (est(u"COLUMN#") && EnCellule) return marques ? QString(kMarqueColonne) : QString();
  if (est(u"COLUMN#")) return QString::number(Position.Colonne + 1);
  if (est(u"PAGE#")) return marques ? QString(kMarquePage) : QString::number(Compteurs.Page);
  if (est(u"TOTALPAGES")) return marques ? QString(kMarqueTotal) : QString();
  return {};
}

QString TContexteImpression::Chercher(const QString& nom, bool marques) const {
  if (auto moteur = ValeurMoteur(nom, marques)) return *moteur;
  if (auto valeur = Rapport.Valeur(nom, Position)) return *valeur;
  return execution_ ? execution_->Variable(nom).value_or(QString()) : QString();
}

QString TContexteImpression::Valeur(const QString& nom) const { return Chercher(nom, true); }

void TContexteImpression::Appeler(const QString& procedure, const QString& sender,
                                  const TBandeModele& bande) {
  if (procedure.isEmpty() || !execution_) return;
  try {
    execution_->Appeler(procedure, sender);
  } catch (const EScript& e) {
    Noter(bande, sender, u"script, "_s + e.Message);
  }
}

void TContexteImpression::Noter(const TBandeModele& bande, const TObjetModele& objet,
                                const QString& message) {
  QString nom = objet.Nom;
  if (nom.isEmpty()) nom = u"ligne %1"_s.arg(objet.Ligne);
  if (objet.Nom.isEmpty() && objet.Fichier != Modele.Fichier) nom += u" de "_s + objet.Fichier;
  Noter(bande, nom, message);
}

void TContexteImpression::Noter(const TBandeModele& bande, const QString& objet, const QString& message) {
  for (const TDefaut& defaut : defauts_)
    if (defaut.Bande == bande.Nom && defaut.Objet == objet && defaut.Message == message) return;
  defauts_.push_back({bande.Nom, objet, message});
}
