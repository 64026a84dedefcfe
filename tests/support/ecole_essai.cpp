#include "support/ecole_essai.h"

namespace {

QString Texte(const QString& t) { return u'\'' + QString(t).replace(u'\'', "''") + u'\''; }
QString HeureOuNul(const QString& t) { return t.isEmpty() ? "NULL" : Texte(t); }
QString Nombre(int n) { return QString::number(n); }

}  // namespace

int TEcoleEssai::Ajouter(const QString& table, const QString& colonnes, const QStringList& valeurs) {
  const int id = Base->GetNextId(table);
  const QStringList toutes = QStringList{Nombre(id)} + valeurs;
  Base.Sql(u"INSERT INTO %1 (%2) VALUES ("_s.arg(table, colonnes) + toutes.join(u", ") + u')');
  return id;
}

TEleveEssai TEcoleEssai::unEleve() {
  const int id = Ajouter("ELEVES", "ELEVE_ID", {});
  Base.Sql(
      u"UPDATE ELEVES SET NOM = 'Eleve%1', PRENOM = 'Prenom%1', MATRICULE = '%1-1' WHERE ELEVE_ID = %1"_s.arg(
          id));
  return {*this, id};
}

void TEcoleEssai::parametre(int id, const QString& valeur) {
  Base.Sql(u"UPDATE OR INSERT INTO PARAMETRE (PARAMETRE_ID, VALEUR) VALUES (%1, "_s.arg(id) + Texte(valeur) +
           u')');
}

void TEcoleEssai::parametres(const QString& tous) {
  for (const QString& un : tous.split(u'|')) parametre(un.section(u'=', 0, 0).toInt(), un.section(u'=', 1));
}

int TEcoleEssai::tarif(int famille, int jour, const QString& debut, const QString& fin, int forfait,
                       const QString& cout, int scan, const QString& cout2e) {
  return Ajouter(
      "TARIF_GARDERIE",
      u"TARIF_GARDERIE_ID, TYPE_FAMILLE, TYPE_JOUR, HEURE_DEBUT_SCAN, HEURE_FIN_SCAN, TYPE_FORFAIT, "
      "COUT, TYPE_SCAN, COUT_2E_ENFANT"_s,
      {Nombre(famille), Nombre(jour), Texte(debut), Texte(fin), Nombre(forfait), cout, Nombre(scan), cout2e});
}

int TEcoleEssai::activite(const QString& debut, const QString& fin, const QString& du, const QString& au) {
  return Ajouter("ACTIVITES",
                 "ACTIVITE_ID, LIBELLE, ANNEE_SCOLAIRE, HEURE_DEBUT, HEURE_FIN, DATE_DEBUT, DATE_FIN",
                 {Texte("Activité"), Nombre(Annee), Texte(debut), Texte(fin), Texte(du), Texte(au)});
}

int TEcoleEssai::frais(const QString& libelle, const QString& cout, int mois, const QString& drapeaux) {
  const auto drapeau = [&](const QString& nom) { return drapeaux.contains(nom) ? "1" : "NULL"; };
  return Ajouter("LISTE_FRAIS",
                 u"LISTEFRAIS_ID, LIBELLE, COUT, TYPE_FRAIS, MOIS, ANNEE_SCOLAIRE, FLG_PREVISIONNEL, "
                 "FLG_NON_OBLIGATOIRE, FLG_SERVICE"_s,
                 {Texte(libelle), cout, Nombre(2), Nombre(mois), Nombre(Annee), drapeau("previsionnel"),
                  drapeau("non_obligatoire"), drapeau("service")});
}

int TEcoleEssai::mouvement(const QString& donneur, const QString& date, const QString& montant,
                           const QString& compte, const QString& communication) {
  return Ajouter("EXTRAITS",
                 u"EXTRAIT_ID, DONNEUR_ORDRE, DATE_VIREMENT, MONTANT, NUM_CPT_DONNEUR, COMMUNICATION, "
                 "ANNEE_SCOLAIRE"_s,
                 {Texte(donneur), Texte(date), montant, Texte(compte), Texte(communication), Nombre(Annee)});
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
  return poser("NOM", Texte(nom)).poser("PRENOM", Texte(prenom));
}

TEleveEssai& TEleveEssai::matricule(const QString& texte) { return poser("MATRICULE", Texte(texte)); }

TEleveEssai& TEleveEssai::avec(const QString& drapeau) { return poser(drapeau, "1"); }

TEleveEssai& TEleveEssai::enClasse(const QString& classe, const QString& sousClasse, const QString& site) {
  return ajouter("ELEVES_CLASSES",
                 "ELEVE_CLASSE_ID, ELEVE_ID, ANNEE_SCOLAIRE, CLASSE, SOUS_CLASSE, CODE_IMPLANTATION",
                 {Nombre(ecole_.Annee), Texte(classe), Texte(sousClasse), Texte(site)});
}

TEleveEssai& TEleveEssai::scan(int type, const QString& date, const QString& entree, const QString& sortie) {
  return ajouter("PRESENCES", "PRESENCE_ID, ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE, HEURE_ENTREE, HEURE_SORTIE",
                 {Nombre(type), Texte(date), HeureOuNul(entree), HeureOuNul(sortie)});
}

TEleveEssai& TEleveEssai::marque(int type, int mois) {
  return ajouter("PRESENCES_PARTICULIERES", "PRESENCEPARTICULIERE_ID, ELEVE_ID, TYPE_PRESENCE, MOIS, ANNEE",
                 {Nombre(type), Nombre(mois), Nombre(mois < 9 ? ecole_.Annee + 1 : ecole_.Annee)});
}

TEleveEssai& TEleveEssai::doit(int frais, const QString& verse) {
  return ajouter("FRAIS_ELEVE",
                 "FRAIS_ELEVE_ID, ELEVE_ID, ANNEE_SCOLAIRE, LISTEFRAIS_ID, REMARQUE, MONTANT_VERSE",
                 {Nombre(ecole_.Annee), Nombre(frais), Texte({}), verse});
}

TEleveEssai& TEleveEssai::paie(const QString& montant, int mois, int famille, const QString& libelle) {
  return ajouter(
      "FRAIS_ELEVE",
      "FRAIS_ELEVE_ID, ELEVE_ID, ANNEE_SCOLAIRE, REMARQUE, MONTANT_VERSE, MOIS, TYPE_FAMILLE_FRAIS",
      {Nombre(ecole_.Annee), Texte(libelle), montant, Nombre(mois), Nombre(famille)});
}

TEleveEssai& TEleveEssai::mois(int mois, const QString& montant, int type) {
  const QString annee = Nombre(ecole_.Annee);
  return ajouter("PAIEMENTS", "PAIEMENT_ID, ELEVE_ID, TYPE_PAIEMENT, MOIS, ANNEE, MONTANT, ANNEE_SCOLAIRE",
                 {Nombre(type), Nombre(mois), annee, montant, annee});
}

TEleveEssai& TEleveEssai::suit(int activite, const QString& jours) {
  QStringList valeurs{Nombre(activite)};
  for (int jour = 1; jour <= 5; ++jour) valeurs += jours.contains(Nombre(jour)) ? "1" : "0";
  return ajouter("ACTIVITES_ELEVES",
                 u"ACTIVITE_ELEVE_ID, ELEVE_ID, ACTIVITE_ID, FLG_LUNDI, FLG_MARDI, FLG_MERCREDI, FLG_JEUDI, "
                 "FLG_VENDREDI"_s,
                 valeurs);
}
