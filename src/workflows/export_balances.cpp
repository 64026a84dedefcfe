#include "workflows/export_balances.h"

#include "core/fichiers.h"
#include "core/formats.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

namespace {

QString Cite(QString cellule) { return u'"' % cellule.replace(u'"', u"\"\""_s) % u'"'; }

QString Ligne(const TMontantEleve& ligne, bool avecCompte) {
  const TEleve& eleve = *ligne.Eleve;
  QStringList cellules{eleve.Matricule, eleve.Nom, eleve.Prenom, eleve.LibelleClasse(),
                       FormatDeuxDecimales(ligne.Montant)};
  if (avecCompte) cellules += eleve.NumCompte;
  cellules += {eleve.NomResponsable, eleve.PrenomResponsable, eleve.Adresse % u", " % eleve.Numero,
               IntOuVide(eleve.CodePostal), eleve.Localite};
  for (QString& cellule : cellules) cellule = Cite(cellule);
  return cellules.join(u';');
}

void Exporter(const QString& entete, const std::vector<TMontantEleve>& lignes, bool avecCompte,
              const QString& chemin) {
  QString texte = u'\ufeff' % entete % u"\r\n";
  for (const TMontantEleve& ligne : lignes) texte += Ligne(ligne, avecCompte) % u"\r\n";
  EcrireFichier(chemin, texte.toUtf8());
}

}  // namespace

void ExporterImpayes(const std::vector<TMontantEleve>& lignes, const QString& chemin) {
  Exporter(
      u"Matricule;Nom;Prénom;Classe;Montant;Nom du responsable;Prénom du responsable;Adresse;Code postal;"
      "Localite"_s,
      lignes, false, chemin);
}

void ExporterBalancesPositives(const std::vector<TMontantEleve>& lignes, const QString& chemin) {
  Exporter(
      u"Matricule;Nom;Prénom;Classe;Montant;Numéro de compte;Nom du responsable;Prénom du responsable;"
      "Adresse;Code postal;Localite"_s,
      lignes, true, chemin);
}
