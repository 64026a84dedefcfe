#include "bench/ecole_bench.h"

#include <random>

#include "core/dates.h"
#include "core/exceptions.h"
#include "core/query_internal.h"
#include "core/transaction_commune.h"

using namespace Qt::StringLiterals;

namespace {

void Executer(TDataModule1& base, const QString& sql) { TQueryInternal(base, sql).Executer(); }

void RemplirTarifs(TDataModule1& base) {
  struct {
    int famille;
    const char *debut, *fin;
    int forfait;
    double cout;
    int scan;
  } const tarifs[] = {
      {1, "07:00", "08:00", 1, 1.0, 1},  {1, "08:00", "08:30", 1, 0.5, 1}, {7, "11:45", "13:30", 1, 0.8, 1},
      {2, "15:30", "17:00", 3, 0.75, 3}, {2, "17:00", "18:30", 4, 0.5, 3}, {3, "12:15", "18:00", 2, 1.5, 3},
      {4, "15:30", "16:30", 1, 1.0, 3},  {5, "00:00", "23:59", 1, 0.0, 1}, {6, "00:30", "23:59", 1, 0.6, 1}};
  int cle = 0;
  for (const auto& t : tarifs)
    Executer(base,
             u"INSERT INTO TARIF_GARDERIE (TARIF_GARDERIE_ID, TYPE_FAMILLE, TYPE_JOUR, "
             "HEURE_DEBUT_SCAN, HEURE_FIN_SCAN, TYPE_FORFAIT, COUT, TYPE_SCAN, COUT_2E_ENFANT) "
             "VALUES (%1, %2, %3, '%4', '%5', %6, %7, %8, %7)"_s.arg(++cle)
                 .arg(t.famille)
                 .arg(t.famille == 3   ? 3
                      : t.famille == 2 ? 7
                                       : 6)
                 .arg(QLatin1String(t.debut), QLatin1String(t.fin))
                 .arg(t.forfait)
                 .arg(t.cout)
                 .arg(t.scan));
}

void RemplirEleves(TDataModule1& base, int eleves) {
  TQueryInternal eleve(base,
                       u"INSERT INTO ELEVES (ELEVE_ID, NOM, PRENOM, MATRICULE, ADRESSE, LOCALITE, "
                       "NOM_RESPONSABLE, CODE_POSTAL, FLG_2E_ENFANT) VALUES (:ID, :NOM, :PRENOM, :MATRICULE, "
                       "'rue des Tilleuls', 'Ottignies', :RESPONSABLE, 1340, :DEUXIEME)"_s);
  TQueryInternal inscription(base,
                             u"INSERT INTO ELEVES_CLASSES (ELEVE_CLASSE_ID, ELEVE_ID, ANNEE_SCOLAIRE, "
                             "CLASSE, SOUS_CLASSE, CODE_IMPLANTATION) VALUES (:ID, :ID, 2016, :CLASSE, "
                             ":SOUS_CLASSE, '')"_s);
  for (int i = 1; i <= eleves; ++i) {
    eleve.Parametre(u"ID"_s, i)
        .Parametre(u"NOM"_s, u"Famille %1"_s.arg(i * 7 % 911))
        .Parametre(u"PRENOM"_s, u"Prénom %1"_s.arg(i % 97))
        .Parametre(u"MATRICULE"_s, u"%1-%2"_s.arg(i / 10).arg(i))
        .Parametre(u"RESPONSABLE"_s, u"Responsable %1"_s.arg(i))
        .Parametre(u"DEUXIEME"_s, i % 3 == 0 ? TValeur(1) : TValeur())
        .Executer();
    inscription.Parametre(u"ID"_s, i)
        .Parametre(u"CLASSE"_s, u"%1%2"_s.arg(QChar(i % 3 == 0 ? u'M' : u'P')).arg(i % 6 + 1))
        .Parametre(u"SOUS_CLASSE"_s, i % 2 == 0 ? u"A"_s : u"B"_s)
        .Executer();
  }
}

void RemplirPresences(TDataModule1& base, int eleves, int presences) {
  std::mt19937 tirage(2016);
  TQueryInternal presence(base,
                          u"INSERT INTO PRESENCES (PRESENCE_ID, ELEVE_ID, TYPE_PRESENCE, DATE_RELEVE, "
                          "HEURE_ENTREE, HEURE_SORTIE, CODE_IMPLANTATION) VALUES (:ID, :ELEVE, :TYPE, :DATE, "
                          ":ENTREE, :SORTIE, 'S1')"_s);
  const QDate premier(2016, 9, 1);
  for (int i = 1; i <= presences; ++i) {
    const int sorte = static_cast<int>(tirage() % 6);  // morning, midday, evening, evening, meal, study
    const int minute = static_cast<int>(tirage() % 90);
    const bool entree = sorte == 0 || sorte == 1 || sorte == 4;
    const int debut = sorte == 0 ? 7 * 60 : sorte == 1 || sorte == 4 ? 12 * 60 : 15 * 60 + 30;
    const QTime heure = QTime(0, 0).addSecs(60 * (debut + minute));
    const int eleve = 1 + static_cast<int>(tirage() % static_cast<unsigned>(eleves));
    presence.Parametre(u"ID"_s, i)
        .Parametre(u"ELEVE"_s, eleve)
        .Parametre(u"TYPE"_s, sorte == 4   ? 2
                              : sorte == 5 ? 4
                                           : 1)
        .Parametre(u"DATE"_s, premier.addDays(static_cast<qint64>(tirage() % 303)))
        .Parametre(u"ENTREE"_s, entree ? heure : QTime())
        .Parametre(u"SORTIE"_s, entree ? QTime() : heure)
        .Executer();
  }
}

void RemplirParametres(TDataModule1& base) {
  static constexpr std::pair<TParam, const char16_t*> kParametres[] = {
      {TParam::NomEcole, u"École fondamentale de Brumeval"},
      {TParam::RueEcole, u"rue du Vieux Moulin 27"},
      {TParam::CodePostalEcole, u"5537"},
      {TParam::LocaliteEcole, u"Brumeval"},
      {TParam::TelephoneEcole, u"082 61 00 00"},
      {TParam::CommunicationFacture, u"Communication à recopier : [ComStructParFacture]"},
      {TParam::CompteBanque, u"BE68 5390 0754 7034"},
      {TParam::AnneeScolaire, u"2016"},
      {TParam::RepasPrimaire, u"3,50"}};
  TParametres parametres(base);
  for (const auto& [param, valeur] : kParametres) parametres.SetParametre(param, QString::fromUtf16(valeur));
  parametres.Save();
}

/// Fees of October, and who owes them: every second pupil those of the second kind.
void RemplirFrais(TDataModule1& base) {
  struct {
    const char* libelle;
    double cout;
    int nonObligatoire, pas;
  } const frais[] = {{"Piscine", 12.5, 0, 1},
                     {"Photocopies", 4.0, 0, 1},
                     {"Excursion à la ferme", 8.0, 0, 1},
                     {"Photo de classe", 6.5, 1, 2}};
  int cle = 0;
  for (const auto& f : frais) {
    Executer(base,
             u"INSERT INTO LISTE_FRAIS (LISTEFRAIS_ID, LIBELLE, COUT, TYPE_FRAIS, MOIS, "
             "ANNEE_SCOLAIRE, FLG_PREVISIONNEL, FLG_NON_OBLIGATOIRE, FLG_SERVICE) "
             "VALUES (%1, '%2', %3, 2, 10, 2016, 0, %4, 0)"_s.arg(++cle)
                 .arg(QString::fromUtf8(f.libelle))
                 .arg(f.cout)
                 .arg(f.nonObligatoire));
    Executer(base,
             u"INSERT INTO FRAIS_ELEVE (FRAIS_ELEVE_ID, ANNEE_SCOLAIRE, ELEVE_ID, "
             "LISTEFRAIS_ID, REMARQUE, MONTANT_VERSE) "
             "SELECT ELEVE_ID * 10 + %1, 2016, ELEVE_ID, %1, '', 0 FROM ELEVES "
             "WHERE MOD(ELEVE_ID, %2) = 0"_s.arg(cle)
                 .arg(f.pas));
  }
  Executer(base,
           u"UPDATE COUNTERS SET VALEUR = (SELECT MAX(FRAIS_ELEVE_ID) FROM FRAIS_ELEVE) "
           "WHERE TABLE_NAME = 'FRAIS_ELEVE'"_s);
}

void Remplir(TDataModule1& base, int eleves, int presences) {
  TTransactionCommune ensemble(base);
  RemplirParametres(base);
  RemplirTarifs(base);
  RemplirEleves(base, eleves);
  RemplirFrais(base);
  RemplirPresences(base, eleves, presences);
  ensemble.Valider();
}

}  // namespace

void TSilence::Message(const QString& texte) { throw Exception(texte); }

TEcole::TEcole(const QTemporaryDir& dossier, int eleves, int presences) : base_(dialogues_, reglages_) {
  base_.ServerName = dossier.filePath(u"bench%1.fdb"_s.arg(eleves));
  base_.Connecter();
  base_.Deconnecter();
  base_.EcrituresForcees(false);
  base_.Connecter();
  Remplir(base_, eleves, presences);
  parametres_ = std::make_unique<TParametres>(base_);
  tarifs_ = std::make_unique<TTarifsGarderies>(base_);
}

std::unique_ptr<TDonneesAnnee> TEcole::Charger() {
  return ChargerDonneesAnnee(base_, kAnnee, *parametres_, *tarifs_);
}
