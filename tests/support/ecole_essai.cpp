#include "support/ecole_essai.h"

using namespace Qt::StringLiterals;

namespace {

QString Texte(const QString& t) { return u'\'' + QString(t).replace(u'\'', u"''"_s) + u'\''; }
QString HeureOuNul(const QString& t) { return t.isEmpty() ? u"NULL"_s : Texte(t); }
QString Nombre(int n) { return QString::number(n); }

}  // namespace

int TEcoleEssai::Ajouter(const QString& table, const QString& colonnes, const QStringList& valeurs) {
  const int id = Base->GetNextId(table);
  const QStringList toutes = QStringList{Nombre(id)} + valeurs;
  Base.Sql(u"INSERT INTO %1 (%2) VALUES ("_s.arg(table, colonnes) + toutes.join(u", ") + u')');
  return id;
}

TEleveEssai TEcoleEssai::unEleve() {
  const int id = Ajouter(u"ELEVES"_s, u"ELEVE_ID"_s, {});
  Base.Sql(
      u"UPDATE ELEVES SET NOM = 'Eleve%1', PRENOM = 'Prenom%1', MATRICULE = '%1-1' WHERE ELEVE_ID = %1"_s.arg(
          id));
  return {*this, id};
}

void TEcoleEssai::parametre(int id, const QString& valeur) {
  Base.Sql(u"UPDATE OR INSERT INTO PARAMETRE (PARAMETRE_ID, VALEUR) VALUES (%1, "_s.arg(id) + Texte(valeur) +
           u')');
}

int TEcoleEssai::tarif(int famille, int jour, const QString& debut, const QString& fin, int forfait,
                       const QString& cout, int scan, const QString& cout2e) {
  return Ajouter(
      u"TARIF_GARDERIE"_s,
      u"TARIF_GARDERIE_ID, TYPE_FAMILLE, TYPE_JOUR, HEURE_DEBUT_SCAN, HEURE_FIN_SCAN, TYPE_FORFAIT, "
      "COUT, TYPE_SCAN, COUT_2E_ENFANT"_s,
      {Nombre(famille), Nombre(jour), Texte(debut), Texte(fin), Nombre(forfait), cout, Nombre(scan), cout2e});
}

int TEcoleEssai::activite(const QString& debut, const QString& fin, const QString& du, const QString& au) {
  return Ajouter(u"ACTIVITES"_s,
                 u"ACTIVITE_ID, LIBELLE, ANNEE_SCOLAIRE, HEURE_DEBUT, HEURE_FIN, DATE_DEBUT, DATE_FIN"_s,
                 {Texte(u"Activité"_s), Nombre(Annee), Texte(debut), Texte(fin), Texte(du), Texte(au)});
}

int TEcoleEssai::frais(const QString& libelle, const QString& cout, int mois, const QString& drapeaux) {
  const auto drapeau = [&](const QString& nom) { return drapeaux.contains(nom) ? u"1"_s : u"NULL"_s; };
  return Ajouter(u"LISTE_FRAIS"_s,
                 u"LISTEFRAIS_ID, LIBELLE, COUT, TYPE_FRAIS, MOIS, ANNEE_SCOLAIRE, FLG_PREVISIONNEL, "
                 "FLG_NON_OBLIGATOIRE, FLG_SERVICE"_s,
                 {Texte(libelle), cout, Nombre(2), Nombre(mois), Nombre(Annee), drapeau(u"previsionnel"_s),
                  drapeau(u"non_obligatoire"_s), drapeau(u"service"_s)});
}

TEleveEssai& TEleveEssai::poser(const QString& colonne, const QString& valeur) {
  ecole_.Base.Sql(u"UPDATE ELEVES SET " + colonne + u" = " + valeur + u" WHERE ELEVE_ID = " + Nombre(Id));
  return *this;
}

TEleveEssai& TEleveEssai::ajouter(const QString& table, const QString& colonnes, const QStringList& valeurs) {
  ecole_.Ajouter(table, colonnes, QStringList{Nombre(Id)} + valeurs);
  return *this;
}

TEleveEssai& TEleveEssai::nomme(const QString& nom, const QString& prenom) {
  return poser(u"NOM"_s, Texte(nom)).poser(u"PRENOM"_s, Texte(prenom));
}

TEleveEssai& TEleveEssai::matricule(const QString& texte) { return poser(u"MATRICULE"_s, Texte(texte)); }

TEleveEssai& TEleveEssai::avec(const QString& drapeau) { return poser(drapeau, u"1"_s); }

TEleveEssai& TEleveEssai::enClasse(const QString& classe, const QString& sousClasse, const QString& site) {
  return ajouter(u"ELEVES_CLASSES"_s,
                 u"ELEVE_CLASSE_ID, ELEVE_ID, ANNEE_SCOLAIRE, CLASSE, SOUS_CLASSE, CODE_IMPLANTATION"_s,
                 {Nombre(ecole_.Annee), Texte(classe), Texte(sousClasse), Texte(site)});
}

TEleveEssai& TEleveEssai::scan(int type, const QString& date, const QString& entree, const QString& sortie) {
  return ajouter(u"PRESENCES"_s,
                 u"PRESENCE_ID, ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE, HEURE_ENTREE, HEURE_SORTIE"_s,
                 {Nombre(type), Texte(date), HeureOuNul(entree), HeureOuNul(sortie)});
}

TEleveEssai& TEleveEssai::marque(int type, int mois) {
  return ajouter(u"PRESENCES_PARTICULIERES"_s,
                 u"PRESENCEPARTICULIERE_ID, ELEVE_ID, TYPE_PRESENCE, MOIS, ANNEE"_s,
                 {Nombre(type), Nombre(mois), Nombre(mois < 9 ? ecole_.Annee + 1 : ecole_.Annee)});
}

TEleveEssai& TEleveEssai::doit(int frais, const QString& verse) {
  return ajouter(u"FRAIS_ELEVE"_s,
                 u"FRAIS_ELEVE_ID, ELEVE_ID, ANNEE_SCOLAIRE, LISTEFRAIS_ID, REMARQUE, MONTANT_VERSE"_s,
                 {Nombre(ecole_.Annee), Nombre(frais), Texte({}), verse});
}

TEleveEssai& TEleveEssai::paie(const QString& montant, int mois, int famille, const QString& libelle) {
  return ajouter(
      u"FRAIS_ELEVE"_s,
      u"FRAIS_ELEVE_ID, ELEVE_ID, ANNEE_SCOLAIRE, REMARQUE, MONTANT_VERSE, MOIS, TYPE_FAMILLE_FRAIS"_s,
      {Nombre(ecole_.Annee), Texte(libelle), montant, Nombre(mois), Nombre(famille)});
}

TEleveEssai& TEleveEssai::mois(int mois, const QString& montant, int type) {
  const QString annee = Nombre(ecole_.Annee);
  return ajouter(u"PAIEMENTS"_s,
                 u"PAIEMENT_ID, ELEVE_ID, TYPE_PAIEMENT, MOIS, ANNEE, MONTANT, ANNEE_SCOLAIRE"_s,
                 {Nombre(type), Nombre(mois), annee, montant, annee});
}

TEleveEssai& TEleveEssai::suit(int activite, const QString& jours) {
  QStringList valeurs{Nombre(activite)};
  for (int jour = 1; jour <= 5; ++jour) valeurs += jours.contains(Nombre(jour)) ? u"1"_s : u"0"_s;
  return ajouter(u"ACTIVITES_ELEVES"_s,
                 u"ACTIVITE_ELEVE_ID, ELEVE_ID, ACTIVITE_ID, FLG_LUNDI, FLG_MARDI, FLG_MERCREDI, FLG_JEUDI, "
                 "FLG_VENDREDI"_s,
                 valeurs);
}
