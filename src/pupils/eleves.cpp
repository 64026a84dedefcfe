#include "pupils/eleves.h"

#include <algorithm>

#include "core/comparaisons.h"
#include "core/data_module.h"
#include "core/data_set.h"
#include "core/query_internal.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

/// The lines of the whole year are read as fast as those of so many pupils, one by one.
constexpr std::size_t kLecturesUneAUne = 20;

template <class T>
struct TColonne {
  const char* nom;
  T TEleve::*champ;
};

constexpr TColonne<QString> kTextes[] = {
    {"NOM", &TEleve::Nom},
    {"PRENOM", &TEleve::Prenom},
    {"MATRICULE", &TEleve::Matricule},
    {"NOM_RESPONSABLE", &TEleve::NomResponsable},
    {"PRENOM_RESPONSABLE", &TEleve::PrenomResponsable},
    {"ADRESSE", &TEleve::Adresse},
    {"NUMERO", &TEleve::Numero},
    {"LOCALITE", &TEleve::Localite},
    {"NUM_COMPTE", &TEleve::NumCompte},
    {"NOM_TITULAIRE_COMPTE", &TEleve::NomTitulaireCompte},
    {"NOM_RESPONSABLE2", &TEleve::NomResponsable2},
    {"PRENOM_RESPONSABLE2", &TEleve::PrenomResponsable2},
    {"ADRESSE2", &TEleve::Adresse2},
    {"NUMERO2", &TEleve::Numero2},
    {"LOCALITE2", &TEleve::Localite2},
};

constexpr TColonne<int> kEntiers[] = {
    {"CODE_POSTAL", &TEleve::CodePostal},
    {"CODE_POSTAL2", &TEleve::CodePostal2},
};

constexpr TColonne<bool> kDrapeaux[] = {
    {"FLG_2E_ENFANT", &TEleve::Flg2eEnfant},
    {"FLG_3E_ENFANT", &TEleve::Flg3eEnfant},
    {"FLG_FACTURE_DETAIL", &TEleve::FlgFactureDetail},
    {"FLG_DOMICILIATION", &TEleve::FlgDomiciliation},
    {"FLG_PARENT_SEPARE", &TEleve::FlgParentSepare},
    {"FLG_IMPOT_RESPONS2", &TEleve::FlgImpotRespons2},
    {"FLG_RADIE", &TEleve::FlgRadie},
};

}  // namespace

TEleves::TEleves(TDataModule1& base, int annee)
    : TCollection(base),
      AnneeScolaire(annee),
      HorsLigne(false),
      ElevesClasses(base, annee),
      Implantations(std::make_unique<TImplantations>(base)) {
  Charger();
  TrierClasses();
}

TEleves::TEleves(int annee, TDataSet& inscriptions, TDataSet& eleves)
    : TCollection(eleves), AnneeScolaire(annee), HorsLigne(true), ElevesClasses(inscriptions, annee) {
  Charger();
  TrierClasses();
}

void TEleves::DefineQuery() {
  if (AnneeScolaire == 0)
    SelectSql = u"SELECT * FROM ELEVES ORDER BY NOM, PRENOM"_s;
  else
    SelectSql = u"SELECT * FROM ELEVES, ELEVES_CLASSES WHERE ANNEE_SCOLAIRE=" %
                QString::number(AnneeScolaire) %
                u" AND ELEVES.ELEVE_ID=ELEVES_CLASSES.ELEVE_ID ORDER BY CODE_IMPLANTATION, "
                u"ELEVES_CLASSES.CLASSE, ELEVES_CLASSES.SOUS_CLASSE, NOM, PRENOM";
  TableName = u"ELEVES"_s;
  KeyField = "ELEVE_ID";
  CounterName = u"ELEVES"_s;
}

void TEleves::LoadItems(TCurseur& ligne) {
  TEleve& eleve = Nouveau(ligne);
  for (const auto& [nom, champ] : kTextes) eleve.*champ = ligne.Texte(nom);
  for (const auto& [nom, champ] : kEntiers) eleve.*champ = ligne.Entier(nom);
  for (const auto& [nom, champ] : kDrapeaux) eleve.*champ = ligne.EstVrai(nom);
  eleve.DateNaissance = ligne.Date("DATE_NAISSANCE");
  eleve.NumAttestation = ligne.Entier("NUM_ATTEST_2015");
  eleve.CodeImplantation = ElevesClasses.ImplantationDe(eleve.Id);
  Classer(eleve);
}

void TEleves::LoadFromSource(TDataSet& source) {
  auto eleve = std::make_unique<TEleve>();
  eleve->Id = source.Valeur(u"ELEVE_ID"_s).toInt();
  eleve->Nom = source.Valeur(u"NOM"_s).toString();
  eleve->Prenom = source.Valeur(u"PRENOM"_s).toString();
  eleve->Matricule = source.Valeur(u"MATRICULE"_s).toString();
  Classer(static_cast<TEleve&>(Charge(std::move(eleve))));
}

// The number of the attestation is not among the columns: it is written by GetNumAttestation only, so
// that a workstation that loaded before does not take a printed number away.
void TEleves::StoreRecord(const TEleve& eleve, TLigne& ligne) const {
  for (const auto& [nom, champ] : kTextes) ligne.Ecrire(nom, eleve.*champ);
  for (const auto& [nom, champ] : kEntiers) ligne.Ecrire(nom, eleve.*champ);
  for (const auto& [nom, champ] : kDrapeaux) ligne.EcrireDrapeau(nom, eleve.*champ);
  ligne.EcrireDate("DATE_NAISSANCE", eleve.DateNaissance);
  ligne.Ecrire("CLASSE", eleve.CodeClasse);
  ligne.Ecrire("SOUS_CLASSE", eleve.SousClasse);
}

void TEleves::Indexer(TEleve& eleve) {
  eleve.Eleves = this;
  parId_.Suivre(eleve, eleve.Id);
  parMatricule_.Suivre(eleve, eleve.Matricule);
  parCode_.Suivre(eleve, QString(eleve.Matricule).remove(u'-'));
}

void TEleves::Desindexer(TEleve& eleve) {
  parId_.Oublier(eleve);
  parMatricule_.Oublier(eleve);
  parCode_.Oublier(eleve);
  if (eleve.Classe != nullptr) std::erase(eleve.Classe->ListeEleves, &eleve);
  eleve.Classe = nullptr;
  eleve.Eleves = nullptr;
}

TClasse& TEleves::TrouverClasse(const QString& code, const QString& sousClasse, const QString& implantation) {
  for (const auto& classe : classes_)
    if (classe->CodeClasse == code && classe->SousClasse == sousClasse &&
        classe->CodeImplantation == implantation)
      return *classe;
  return *classes_.emplace_back(std::make_unique<TClasse>(*this, code, sousClasse, implantation));
}

void TEleves::Classer(TEleve& eleve) {
  eleve.CodeClasse = ElevesClasses.ClasseDe(eleve.Id);
  eleve.SousClasse = ElevesClasses.SousClasseDe(eleve.Id);
  TClasse& classe = TrouverClasse(eleve.CodeClasse, eleve.SousClasse, eleve.CodeImplantation);
  eleve.Classe = &classe;
  classe.ListeEleves.push_back(&eleve);
}

void TEleves::TrierClasses() {
  for (const auto& classe : classes_) classesParNom_.push_back(classe.get());
  std::ranges::stable_sort(
      classes_, [](const auto& a, const auto& b) { return ComparerTextes(a->Libelle(), b->Libelle()) < 0; });
}

int TEleves::NombreEleves() const {
  int nombre = 0;
  for (const auto& classe : classes_) nombre += classe->NombreEleves();
  return nombre;
}

void TEleves::AddClasseEleve(int eleveId, const QString& code, int annee, const QString& implantation,
                             const QString& sousClasse) {
  ElevesClasses.Inscrire(eleveId, code, annee, implantation, sousClasse);
}

void TEleves::SynchroniserImplantations() {
  if (!Implantations) return;
  for (const TEleve& eleve : *this) {
    const QString code = eleve.CodeImplantation.trimmed();
    // A code that the table of sites cannot hold must not keep the year from being loaded.
    const bool tropLong = code.size() > kCodeImplantationMaximum;
    if (code.isEmpty() || tropLong || Implantations->TrouverParCode(code) != nullptr) continue;
    auto nouvelle = std::make_unique<TImplantation>();
    nouvelle->Code = code;
    Implantations->AddImplantation(std::move(nouvelle));
    Implantations->Save();
  }
}

bool TEleves::PlusieursImplantations() const { return Implantations && Implantations->Count() >= 2; }

QString TEleves::LibelleImplantation(const QString& code) const {
  const TImplantation* site = Implantations ? Implantations->TrouverParCode(code) : nullptr;
  // A site that the load has just created has no name yet.
  return site != nullptr && !site->LibelleCourt.trimmed().isEmpty() ? site->LibelleCourt : code;
}

int TEleves::ExtraitVersEleve(int extraitId) {
  if (ChargerExtraits) {
    eleveParExtrait_.clear();
    TCurseur ligne(BaseDeDonnees(), u"SELECT ELEVE_ID, EXTRAIT_ID FROM FRAIS_ELEVE WHERE EXTRAIT_ID>0"_s);
    while (ligne.Suivant()) {
      const int eleveId = ligne.Entier("ELEVE_ID");
      eleveParExtrait_.emplace(ligne.Entier("EXTRAIT_ID"), eleveId);  // the first row wins
    }
    ChargerExtraits = false;
  }
  const auto i = eleveParExtrait_.find(extraitId);
  return i == eleveParExtrait_.end() ? 0 : i->second;
}

void TEleves::LireFrais(const std::vector<TEleve*>& eleves) const {
  std::vector<int> cles;
  for (const TEleve* eleve : eleves)
    if (!eleve->allFrais_ && eleve->Id != -1) cles.push_back(eleve->Id);
  if (HorsLigne || cles.size() < kLecturesUneAUne) return;
  auto ensemble = TAllFraisEleve::LireEnsemble(Base(), cles, AnneeScolaire, ListeFrais);
  for (TEleve* eleve : eleves)
    if (!eleve->allFrais_ && eleve->Id != -1) eleve->allFrais_ = std::move(ensemble[eleve->Id]);
}

void TEleves::ComptesDonneurs(int eleveId, QStringList& numeros, QStringList& noms) const {
  numeros.clear();
  noms.clear();
  TCurseur ligne(BaseDeDonnees(),
                 u"select NUM_CPT_DONNEUR, DONNEUR_ORDRE from frais_eleve, extraits\n"
                 u"where frais_eleve.annee_scolaire=" %
                     QString::number(AnneeScolaire) %
                     u"\nand frais_eleve.extrait_id=extraits.extrait_id\nand eleve_id=" %
                     QString::number(eleveId) % u"\ngroup by NUM_CPT_DONNEUR,  DONNEUR_ORDRE");
  while (ligne.Suivant()) {
    numeros += ligne.Texte("NUM_CPT_DONNEUR");
    noms += ligne.Texte("DONNEUR_ORDRE");
  }
}

void TEleves::DeplacerTicket(int ancienEleveId, int nouvelEleveId, int ticketId) {
  TQueryInternal(BaseDeDonnees(), u"UPDATE TICKET SET ELEVE_ID = " % QString::number(nouvelEleveId) %
                                      u" where ELEVE_ID=" % QString::number(ancienEleveId) %
                                      u" AND TICKET_ID=" % QString::number(ticketId))
      .Executer();
}

TDataModule1& TEleves::BaseDeDonnees() const {
  if (HorsLigne)
    throw Exception(u"Cette opération demande la base de données : elle ne se fait pas hors ligne."_s);
  return Base();
}
