#include "core/schema.h"

#include <QRegularExpression>

#include "core/curseur.h"

using namespace Qt::StringLiterals;

QString ScriptTablesDeBase() {
  return uR"sql(
CREATE TABLE COUNTERS (TABLE_NAME VARCHAR(60) CONSTRAINT PK_COUNTERS PRIMARY KEY NOT NULL, VALEUR INTEGER);
CREATE TABLE COMPTEUR_FONCTIONEL (
  TABLE_NAME VARCHAR(60) CONSTRAINT PK_COMPTEUR_FONCTIONEL PRIMARY KEY NOT NULL, VALEUR INTEGER);
INSERT INTO COUNTERS (TABLE_NAME, VALEUR) VALUES ('ELEVES', 0);
INSERT INTO COUNTERS (TABLE_NAME, VALEUR) VALUES ('PRESENCES', 0);
INSERT INTO COUNTERS (TABLE_NAME, VALEUR) VALUES ('PRESENCES_PARTICULIERES', 0);
INSERT INTO COUNTERS (TABLE_NAME, VALEUR) VALUES ('PAIEMENTS', 0);
CREATE TABLE ELEVES (
  ELEVE_ID INTEGER CONSTRAINT PK_ELEVES PRIMARY KEY NOT NULL, NOM VARCHAR(100), PRENOM VARCHAR(100),
  MATRICULE VARCHAR(40), CLASSE VARCHAR(40), SOUS_CLASSE VARCHAR(20), DATE_NAISSANCE DATE,
  FLG_3E_ENFANT INTEGER);
CREATE TABLE PRESENCES (
  PRESENCE_ID INTEGER CONSTRAINT PK_PRESENCES PRIMARY KEY NOT NULL, ELEVE_ID INTEGER NOT NULL,
  TYPE_PRESENCE INTEGER NOT NULL, DATE_RELEVE DATE NOT NULL, HEURE_ENTREE TIME, HEURE_SORTIE TIME);
CREATE INDEX INDX_PRESENCES_DATE ON PRESENCES (DATE_RELEVE);
CREATE TABLE PRESENCES_PARTICULIERES (
  PRESENCEPARTICULIERE_ID INTEGER CONSTRAINT PK_PRESENCES_PARTICULIERES PRIMARY KEY NOT NULL,
  ELEVE_ID INTEGER NOT NULL, TYPE_PRESENCE INTEGER NOT NULL, MOIS INTEGER NOT NULL, ANNEE INTEGER NOT NULL);
CREATE TABLE PAIEMENTS (
  PAIEMENT_ID INTEGER CONSTRAINT PK_PAIEMENTS PRIMARY KEY NOT NULL, ELEVE_ID INTEGER NOT NULL,
  TYPE_PAIEMENT INTEGER, MOIS INTEGER, ANNEE INTEGER, MONTANT DECIMAL(10,4));
)sql"_s;
}

QStringList Instructions(const QString& script) {
  QStringList instructions;
  QString courante;
  bool entreGuillemets = false;
  const auto ranger = [&] {
    const QString texte = courante.trimmed();
    if (!texte.isEmpty()) instructions += texte;
    courante.clear();
  };
  for (const QChar c : script) {
    if (c == u'\'') entreGuillemets = !entreGuillemets;
    if (c == u';' && !entreGuillemets)
      ranger();
    else
      courante += c;
  }
  ranger();
  return instructions;
}

QStringList ElementsAttendus(const QString& script) {
  const auto forme = [](const char* texte) {
    return QRegularExpression(QString::fromLatin1(texte), QRegularExpression::CaseInsensitiveOption);
  };
  static const QRegularExpression table = forme("^CREATE TABLE (\\w+)");
  static const QRegularExpression colonne = forme("^ALTER TABLE (\\w+) ADD (\\w+)");
  static const QRegularExpression compteur = forme("^INSERT INTO COUNTERS .*VALUES \\(\\s*'(\\w+)'");
  QStringList elements;
  for (const QString& instruction : Instructions(script)) {
    if (const auto lu = table.match(instruction); lu.hasMatch()) elements += lu.captured(1).toUpper();
    if (const auto lu = colonne.match(instruction); lu.hasMatch())
      elements += lu.captured(1).toUpper() + u'.' + lu.captured(2).toUpper();
    if (const auto lu = compteur.match(instruction); lu.hasMatch())
      elements += u"compteur "_s + lu.captured(1).toUpper();
  }
  return elements;
}

QStringList ElementsDuSchema(TDataModule1& base) {
  QStringList elements;
  TCurseur colonnes(base,
                    u"SELECT RDB$RELATION_NAME AS T, RDB$FIELD_NAME AS C FROM RDB$RELATION_FIELDS "
                    "WHERE RDB$SYSTEM_FLAG = 0 ORDER BY 1"_s);
  while (colonnes.Suivant()) {
    const QString table = colonnes.Texte("T");
    if (!elements.contains(table)) elements += table;
    elements += table + u'.' + colonnes.Texte("C");
  }
  if (!elements.contains(u"COUNTERS"_s)) return elements;
  TCurseur compteurs(base, u"SELECT TABLE_NAME FROM COUNTERS"_s);
  while (compteurs.Suivant()) elements += u"compteur "_s + compteurs.Texte("TABLE_NAME");
  return elements;
}
