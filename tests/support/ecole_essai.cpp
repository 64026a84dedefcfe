#include "support/ecole_essai.h"

namespace {

QString Texte(const QString& t) { return u'\'' + QString(t).replace(u'\'', QStringLiteral("''")) + u'\''; }
QString HeureOuNul(const QString& t) { return t.isEmpty() ? QStringLiteral("NULL") : Texte(t); }
QString Valeurs(const QStringList& valeurs) { return u" VALUES (" + valeurs.join(u", ") + u')'; }
QString Nombre(int n) { return QString::number(n); }

}  // namespace

int TEcoleEssai::Cle(const QString& compteur) { return Base->GetNextId(compteur); }

TEleveEssai TEcoleEssai::unEleve() {
  const int id = Cle(QStringLiteral("ELEVES"));
  const QString n = Nombre(id);
  Base.Sql(u"INSERT INTO ELEVES (ELEVE_ID, NOM, PRENOM, MATRICULE)" +
           Valeurs({n, Texte(u"Eleve" + n), Texte(u"Prenom" + n), Texte(n + u"-1")}));
  return {*this, id};
}

void TEcoleEssai::parametre(int id, const QString& valeur) {
  Base.Sql(u"UPDATE OR INSERT INTO PARAMETRE (PARAMETRE_ID, VALEUR)" + Valeurs({Nombre(id), Texte(valeur)}));
}

int TEcoleEssai::tarif(int famille, int jour, const QString& debut, const QString& fin, int forfait,
                       const QString& cout, int scan, const QString& cout2e) {
  const int id = Cle(QStringLiteral("TARIF_GARDERIE"));
  Base.Sql(
      QStringLiteral("INSERT INTO TARIF_GARDERIE (TARIF_GARDERIE_ID, TYPE_FAMILLE, TYPE_JOUR, "
                     "HEURE_DEBUT_SCAN, HEURE_FIN_SCAN, TYPE_FORFAIT, COUT, TYPE_SCAN, COUT_2E_ENFANT)") +
      Valeurs({Nombre(id), Nombre(famille), Nombre(jour), Texte(debut), Texte(fin), Nombre(forfait), cout,
               Nombre(scan), cout2e}));
  return id;
}

int TEcoleEssai::activite(const QString& debut, const QString& fin, const QString& du, const QString& au) {
  const int id = Cle(QStringLiteral("ACTIVITES"));
  Base.Sql(
      QStringLiteral("INSERT INTO ACTIVITES (ACTIVITE_ID, LIBELLE, ANNEE_SCOLAIRE, HEURE_DEBUT, HEURE_FIN, "
                     "DATE_DEBUT, DATE_FIN)") +
      Valeurs({Nombre(id), Texte(u"Activité " + Nombre(id)), Nombre(Annee), Texte(debut), Texte(fin),
               Texte(du), Texte(au)}));
  return id;
}

int TEcoleEssai::frais(const QString& libelle, const QString& cout, int mois, const QString& drapeaux) {
  const auto drapeau = [&](const char* nom) {
    return drapeaux.contains(QLatin1String(nom)) ? QStringLiteral("1") : QStringLiteral("NULL");
  };
  const int id = Cle(QStringLiteral("LISTE_FRAIS"));
  Base.Sql(QStringLiteral(
               "INSERT INTO LISTE_FRAIS (LISTEFRAIS_ID, LIBELLE, COUT, TYPE_FRAIS, MOIS, ANNEE_SCOLAIRE, "
               "FLG_PREVISIONNEL, FLG_NON_OBLIGATOIRE, FLG_SERVICE)") +
           Valeurs({Nombre(id), Texte(libelle), cout, Nombre(2), Nombre(mois), Nombre(Annee),
                    drapeau("previsionnel"), drapeau("non_obligatoire"), drapeau("service")}));
  return id;
}

TEleveEssai& TEleveEssai::nomme(const QString& nom, const QString& prenom) {
  ecole_.Base.Sql(u"UPDATE ELEVES SET NOM = " + Texte(nom) + u", PRENOM = " + Texte(prenom) +
                  u" WHERE ELEVE_ID = " + Nombre(Id));
  return *this;
}

TEleveEssai& TEleveEssai::matricule(const QString& texte) {
  ecole_.Base.Sql(u"UPDATE ELEVES SET MATRICULE = " + Texte(texte) + u" WHERE ELEVE_ID = " + Nombre(Id));
  return *this;
}

TEleveEssai& TEleveEssai::enClasse(const QString& classe, const QString& sousClasse, const QString& site) {
  ecole_.Base.Sql(
      QStringLiteral("INSERT INTO ELEVES_CLASSES (ELEVE_CLASSE_ID, ELEVE_ID, ANNEE_SCOLAIRE, CLASSE, "
                     "SOUS_CLASSE, CODE_IMPLANTATION)") +
      Valeurs({Nombre(ecole_.Cle(QStringLiteral("ELEVES_CLASSES"))), Nombre(Id), Nombre(ecole_.Annee),
               Texte(classe), Texte(sousClasse), Texte(site)}));
  return *this;
}

TEleveEssai& TEleveEssai::avec(const QString& drapeau) {
  ecole_.Base.Sql(u"UPDATE ELEVES SET " + drapeau + u" = 1 WHERE ELEVE_ID = " + Nombre(Id));
  return *this;
}

TEleveEssai& TEleveEssai::scan(int type, const QString& date, const QString& entree, const QString& sortie) {
  ecole_.Base.Sql(QStringLiteral("INSERT INTO PRESENCES (PRESENCE_ID, ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE, "
                                 "HEURE_ENTREE, HEURE_SORTIE)") +
                  Valeurs({Nombre(ecole_.Cle(QStringLiteral("PRESENCES"))), Nombre(Id), Nombre(type),
                           Texte(date), HeureOuNul(entree), HeureOuNul(sortie)}));
  return *this;
}

TEleveEssai& TEleveEssai::marque(int type, int mois) {
  ecole_.Base.Sql(QStringLiteral("INSERT INTO PRESENCES_PARTICULIERES (PRESENCEPARTICULIERE_ID, ELEVE_ID, "
                                 "TYPE_PRESENCE, MOIS, ANNEE)") +
                  Valeurs({Nombre(ecole_.Cle(QStringLiteral("PRESENCES_PARTICULIERES"))), Nombre(Id),
                           Nombre(type), Nombre(mois), Nombre(mois < 9 ? ecole_.Annee + 1 : ecole_.Annee)}));
  return *this;
}

TEleveEssai& TEleveEssai::doit(int frais, const QString& verse) {
  ecole_.Base.Sql(
      QStringLiteral("INSERT INTO FRAIS_ELEVE (FRAIS_ELEVE_ID, ANNEE_SCOLAIRE, ELEVE_ID, LISTEFRAIS_ID, "
                     "REMARQUE, MONTANT_VERSE)") +
      Valeurs({Nombre(ecole_.Cle(QStringLiteral("FRAIS_ELEVE"))), Nombre(ecole_.Annee), Nombre(Id),
               Nombre(frais), Texte({}), verse}));
  return *this;
}

TEleveEssai& TEleveEssai::paie(const QString& montant, int mois, int famille, const QString& libelle) {
  ecole_.Base.Sql(
      QStringLiteral("INSERT INTO FRAIS_ELEVE (FRAIS_ELEVE_ID, ANNEE_SCOLAIRE, ELEVE_ID, REMARQUE, "
                     "MONTANT_VERSE, MOIS, TYPE_FAMILLE_FRAIS)") +
      Valeurs({Nombre(ecole_.Cle(QStringLiteral("FRAIS_ELEVE"))), Nombre(ecole_.Annee), Nombre(Id),
               Texte(libelle), montant, Nombre(mois), Nombre(famille)}));
  return *this;
}

TEleveEssai& TEleveEssai::mois(int mois, const QString& montant, int type) {
  ecole_.Base.Sql(
      QStringLiteral("INSERT INTO PAIEMENTS (PAIEMENT_ID, ELEVE_ID, TYPE_PAIEMENT, MOIS, ANNEE, MONTANT, "
                     "ANNEE_SCOLAIRE)") +
      Valeurs({Nombre(ecole_.Cle(QStringLiteral("PAIEMENTS"))), Nombre(Id), Nombre(type), Nombre(mois),
               Nombre(ecole_.Annee), montant, Nombre(ecole_.Annee)}));
  return *this;
}

TEleveEssai& TEleveEssai::suit(int activite, const QString& jours) {
  QStringList valeurs{Nombre(ecole_.Cle(QStringLiteral("ACTIVITES_ELEVES"))), Nombre(Id), Nombre(activite)};
  for (int jour = 1; jour <= 5; ++jour)
    valeurs += jours.contains(Nombre(jour)) ? QStringLiteral("1") : QStringLiteral("0");
  ecole_.Base.Sql(
      QStringLiteral("INSERT INTO ACTIVITES_ELEVES (ACTIVITE_ELEVE_ID, ELEVE_ID, ACTIVITE_ID, FLG_LUNDI, "
                     "FLG_MARDI, FLG_MERCREDI, FLG_JEUDI, FLG_VENDREDI)") +
      Valeurs(valeurs));
  return *this;
}
