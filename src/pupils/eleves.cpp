#include "pupils/eleves.h"

#include <algorithm>

#include "core/comparaisons.h"
#include "core/data_module.h"
#include "core/data_set.h"
#include "core/query_internal.h"
#include "meals/commandes.h"
#include "meals/repas_paiements.h"
#include "services/lignes_extrait.h"

using namespace Qt::StringLiterals;

namespace {

/// The lines of the whole year are read as fast as those of so many pupils, one by one.
constexpr std::size_t kLecturesUneAUne = 20;

using namespace Colonne;

// The class is that of the enrolment. The number of the attestation is written by GetNumAttestation only,
// so that a workstation that loaded before does not take a printed number away.
constexpr TColonne<TEleve> kColonnes[] = {
    Texte<&TEleve::Nom>("NOM"),
    Texte<&TEleve::Prenom>("PRENOM"),
    Texte<&TEleve::Matricule>("MATRICULE"),
    Texte<&TEleve::CodeClasse>("CLASSE").SansCharger(),
    Texte<&TEleve::SousClasse>("SOUS_CLASSE").SansCharger(),
    Date<&TEleve::DateNaissance>("DATE_NAISSANCE"),
    Texte<&TEleve::NomResponsable>("NOM_RESPONSABLE"),
    Texte<&TEleve::PrenomResponsable>("PRENOM_RESPONSABLE"),
    Texte<&TEleve::Adresse>("ADRESSE"),
    Texte<&TEleve::Numero>("NUMERO"),
    Entier<&TEleve::CodePostal>("CODE_POSTAL"),
    Texte<&TEleve::Localite>("LOCALITE"),
    Texte<&TEleve::NumCompte>("NUM_COMPTE"),
    Texte<&TEleve::NomTitulaireCompte>("NOM_TITULAIRE_COMPTE"),
    Texte<&TEleve::NomResponsable2>("NOM_RESPONSABLE2"),
    Texte<&TEleve::PrenomResponsable2>("PRENOM_RESPONSABLE2"),
    Texte<&TEleve::Adresse2>("ADRESSE2"),
    Texte<&TEleve::Numero2>("NUMERO2"),
    Entier<&TEleve::CodePostal2>("CODE_POSTAL2"),
    Texte<&TEleve::Localite2>("LOCALITE2"),
    Drapeau<&TEleve::Flg2eEnfant>("FLG_2E_ENFANT"),
    Drapeau<&TEleve::Flg3eEnfant>("FLG_3E_ENFANT"),
    Drapeau<&TEleve::FlgFactureDetail>("FLG_FACTURE_DETAIL"),
    Drapeau<&TEleve::FlgDomiciliation>("FLG_DOMICILIATION"),
    Drapeau<&TEleve::FlgParentSepare>("FLG_PARENT_SEPARE"),
    Drapeau<&TEleve::FlgImpotRespons2>("FLG_IMPOT_RESPONS2"),
    Drapeau<&TEleve::FlgRadie>("FLG_RADIE"),
    Texte<&TEleve::NumNational>("NUM_NATIONAL"),
    Texte<&TEleve::NumNationalResponsable>("NUM_NATIONAL_RESPONSABLE"),
    Texte<&TEleve::NumNationalResponsable2>("NUM_NATIONAL_RESPONSABLE2"),
    Drapeau<&TEleve::FlgHandicap>("FLG_HANDICAP"),
    Entier<&TEleve::NumAttestation>("NUM_ATTEST_2015").SansEcrire(),
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
  Colonnes = kColonnes;
}

void TEleves::LoadFromSource(TDataSet& source) {
  auto eleve = std::make_unique<TEleve>();
  eleve->Id = source.Valeur(u"ELEVE_ID"_s).toInt();
  eleve->Nom = source.Valeur(u"NOM"_s).toString();
  eleve->Prenom = source.Valeur(u"PRENOM"_s).toString();
  eleve->Matricule = source.Valeur(u"MATRICULE"_s).toString();
  eleve->FlgRadie = source.Valeur(u"FLG_RADIE"_s).toInt() == 1;
  Placer(std::move(eleve));
}

void TEleves::Indexer(TEleve& eleve) {
  eleve.Eleves = this;
  parMatricule_.Suivre(eleve, eleve.Matricule);
  parCode_.Suivre(eleve, QString(eleve.Matricule).remove(u'-'));
}

void TEleves::Desindexer(TEleve& eleve) {
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

void TEleves::Completer(TEleve& eleve) {
  eleve.CodeImplantation = ElevesClasses.ImplantationDe(eleve.Id);
  eleve.CodeClasse = ElevesClasses.ClasseDe(eleve.Id);
  eleve.SousClasse = ElevesClasses.SousClasseDe(eleve.Id);
  if (eleve.Classe != nullptr) return;
  eleve.Classe = &TrouverClasse(eleve.CodeClasse, eleve.SousClasse, eleve.CodeImplantation);
  // The select statement gives the names in the order of their bytes: É would stand behind Z.
  const auto avant = [](const TEleve* a, const TEleve* b) { return ComparerNoms(*a, *b) < 0; };
  std::vector<TEleve*>& liste = eleve.Classe->ListeEleves;
  const bool dernier = liste.empty() || !avant(&eleve, liste.back());
  liste.insert(dernier ? liste.end() : std::ranges::upper_bound(liste, &eleve, avant), &eleve);
}

void TEleves::TrierClasses() {
  for (const auto& classe : classes_) classesParNom_.push_back(classe.get());
  std::ranges::stable_sort(
      classes_, [](const auto& a, const auto& b) { return ComparerTextes(a->Libelle(), b->Libelle()) < 0; });
}

std::vector<TEleve*> TEleves::Tous() const {
  std::vector<TEleve*> tous;
  for (TEleve& eleve : *this) tous.push_back(&eleve);
  return tous;
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

const std::vector<TPartExtrait>& TEleves::PartsExtrait(int extraitId) {
  if (ChargerExtraits) {
    partsParExtrait_.clear();
    for (const TLigneExtrait& ligne : LireLignesExtrait(BaseDeDonnees()))
      partsParExtrait_[ligne.ExtraitId].push_back({ligne.EleveId, ligne.Montant, ligne.FlgPart});
    ChargerExtraits = false;
  }
  static const std::vector<TPartExtrait> sans;
  const auto i = partsParExtrait_.find(extraitId);
  return i == partsParExtrait_.end() ? sans : i->second;
}

int TEleves::ExtraitVersEleve(int extraitId) {
  const std::vector<TPartExtrait>& parts = PartsExtrait(extraitId);
  return parts.empty() ? 0 : parts.front().EleveId;
}

Currency TEleves::ResteExtrait(int extraitId, Currency montant) {
  for (const TPartExtrait& part : PartsExtrait(extraitId)) {
    if (!part.FlgPart) return {};
    montant -= part.Montant;
  }
  return montant;
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

TDataModule1& TEleves::BaseDeDonnees() const {
  if (HorsLigne)
    throw Exception(u"Cette opération demande la base de données : elle ne se fait pas hors ligne."_s);
  return Base();
}
