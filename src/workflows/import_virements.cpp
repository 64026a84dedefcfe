#include "workflows/import_virements.h"

#include <QCryptographicHash>
#include <algorithm>
#include <optional>
#include <utility>

#include "core/accord.h"
#include "core/exceptions.h"
#include "core/fichiers.h"
#include "core/formats.h"
#include "core/schema.h"
#include "core/transaction_commune.h"
#include "payments/communication_structuree.h"
#include "payments/releves_connus.h"
#include "workflows/memoriser.h"

using namespace Qt::StringLiterals;

namespace {

/// What a shared file answers on the system of the office.
const QString kViolationDePartage = u"32"_s;

/// The workstation's setting that holds the prints of the files whose step 2 has begun and has not ended.
const QString kVirementsEnCours = u"VirementsEnCours"_s;
/// The oldest ones go: there is a file that nobody takes up again.
constexpr qsizetype kFichiersEnCours = 10;

QStringList LireEnCours(const TReglagesPoste& reglages) {
  return reglages.Lire(TRacine::Utilisateur, kVirementsEnCours).split(u' ', Qt::SkipEmptyParts);
}

/// Only this file's own print comes or goes; none when no file has been read.
void MarquerEnCours(TReglagesPoste& reglages, const QString& empreinte, bool enCours) {
  if (empreinte.isEmpty()) return;
  QStringList fichiers = LireEnCours(reglages);
  fichiers.removeAll(empreinte);
  if (enCours) fichiers += empreinte;
  reglages.Ecrire(TRacine::Utilisateur, kVirementsEnCours,
                  fichiers.last(std::min(fichiers.size(), kFichiersEnCours)).join(u' '));
}

std::unique_ptr<TExtrait> EnExtrait(const TMouvement& lu) {
  auto extrait = std::make_unique<TExtrait>();
  extrait->DonneurOrdre = lu.Donneur;
  extrait->DateVirement = lu.Date;
  extrait->Montant = lu.Montant;
  extrait->Communication = lu.Communication;
  extrait->NumCptDonneur = lu.Compte;
  return extrait;
}

/// Null on a database that has not been brought up to date: it has no place for them.
std::unique_ptr<TRelevesConnus> LireConnus(TDataModule1& base) {
  const bool aJour = ElementsDuSchema(base).contains(u"RELEVE_BANQUE"_s);
  return aJour ? std::make_unique<TRelevesConnus>(base) : nullptr;
}

bool AMemoriser(const TRangeeVirement& rangee) {
  return rangee.Etat == TEtatMouvement::Nouveau ||
         (rangee.Etat == TEtatMouvement::DejaImporte && rangee.Coche);
}

}  // namespace

QString Texte(TEtatMouvement etat) {
  static const QString textes[] = {
      u"Nouveau"_s, u"Inconnu"_s,   u"Comptabilisé"_s,           u"Année précédente"_s,
      u"Caché"_s,   u"Illisible"_s, u"Peut-être déjà importé"_s, u"Attribué en partie"_s};
  return textes[static_cast<int>(etat)];
}

TEtatMouvement EtatExtrait(const TExtrait& extrait) {
  if (extrait.FlgIgnore) return TEtatMouvement::Cache;
  if (Globals.Eleves->ExtraitVersEleve(extrait.Id) == 0) return TEtatMouvement::Inconnu;
  const bool reste = Globals.Eleves->ResteExtrait(extrait.Id, extrait.Montant) > Currency();
  return reste ? TEtatMouvement::Partiel : TEtatMouvement::Comptabilise;
}

QString TexteParts(const TExtrait& extrait) {
  QStringList textes;
  for (const TPartExtrait& part : Globals.Eleves->PartsExtrait(extrait.Id)) {
    if (!part.FlgPart) return {};
    const TEleve* eleve = Globals.Eleves->TrouverParId(part.EleveId);
    textes += (eleve != nullptr ? eleve->NomComplet() : u"élève d'une autre année"_s) % u' ' %
              FormatMontant(part.Montant);
  }
  const Currency reste = Globals.Eleves->ResteExtrait(extrait.Id, extrait.Montant);
  if (!textes.isEmpty() && reste > Currency()) textes += u"reste " % FormatMontant(reste);
  return textes.join(u", "_s);
}

QString TexteDejaImportes(int nombre) {
  return Compter(nombre, u"mouvement est peut-être déjà importé"_s,
                 u"mouvements sont peut-être déjà importés"_s);
}

QString MessageOuverture(const QString& cause) {
  if (cause.contains(kViolationDePartage))
    return u"Le fichier de mouvement est déjà ouvert dans une autre application.\r\n"
           "Veuillez fermer cette application et recommencer le transfert."_s;
  return u"Une erreur s'est produite pendant l'ouverture du fichier.\r\nLe code d'erreur est :"_s + cause;
}

void TImportVirements::Vider() {
  rangees_.clear();
  faute_.reset();
  statut_.clear();
  empreinte_.clear();
  entetes_.clear();
  parSonCompte_ = false;
}

std::optional<QByteArray> TImportVirements::Ouvrir(const QString& chemin) const {
  try {
    return LireFichier(chemin);
  } catch (const EOuvertureFichier& e) {
    controleur_.Dialogues().Message(MessageOuverture(e.Cause));
  } catch (const Exception& e) {
    controleur_.Dialogues().Message(e.Message);
  }
  return {};
}

bool TImportVirements::Etape1(const QString& chemin) {
  Vider();
  const TAttente attente(controleur_.Dialogues());
  const auto octets = Ouvrir(chemin);
  const bool lu = octets && Lire(*octets);
  for (TRangeeVirement& rangee : rangees_)
    Reconnaitre(rangee);  // also those before a fault, for what they are
  if (!lu) return false;
  empreinte_ = QString::fromLatin1(QCryptographicHash::hash(*octets, QCryptographicHash::Sha256).toHex());
  ReconnaitreProches();
  statut_ = u"Le fichier compte %1 mouvements."_s.arg(rangees_.size());
  return true;
}

bool TImportVirements::Lire(const QByteArray& octets) {
  if (auto bancaire = LireReleveBancaire(octets)) return LireBancaire(std::move(*bancaire));
  TReleveLu releve = LireReleve(
      octets, DispositionDuParametre(Globals.Parametres->GetParametre(TParam::TypeCompteBancaire)));
  for (TMouvement& lu : releve.Mouvements) rangees_.push_back({std::move(lu)});
  faute_ = std::move(releve.Faute);
  if (faute_) controleur_.Dialogues().Message(faute_->Message);
  return !faute_;
}

bool TImportVirements::LireBancaire(TReleveBancaire releve) {
  IDialogues& dialogues = controleur_.Dialogues();
  if (!releve.Preuves.isEmpty()) {
    dialogues.Message(releve.Preuves.join(u'\n') % u"\nRien n'a été mémorisé.");
    return false;
  }
  const auto connus = LireConnus(controleur_.Base());
  if (!connus)
    throw Exception(
        u"La base de données n'est pas à jour : lancez sa mise à jour (paramètres de l'école) avant "
        "d'importer un relevé CODA ou camt.053."_s);
  const QStringList doutes = connus->Doutes(releve.Entetes, Globals.Parametres->CompteEcole());
  if (!doutes.isEmpty() && !dialogues.ConfirmerGrave(doutes.join(u'\n') % u"\nL'importer quand même ?"))
    return false;
  parSonCompte_ = true;
  entetes_ = std::move(releve.Entetes);
  for (TMouvement& lu : releve.Mouvements) rangees_.push_back({std::move(lu)});
  return true;
}

void TImportVirements::Reconnaitre(TRangeeVirement& rangee) {
  rangee.Lu.Communication = CommunicationNormalisee(rangee.Lu.Communication);
  const auto extrait = EnExtrait(rangee.Lu);
  TExtraits& extraits = controleur_.Extraits();
  rangee.Extrait = extraits.Identique(*extrait);
  if (rangee.Extrait != nullptr) {
    Situer(rangee);
  } else {
    rangee.Etat = extraits.IdentiqueAnneePrecedente(*extrait) != nullptr ? TEtatMouvement::AnneePrecedente
                                                                         : TEtatMouvement::Nouveau;
  }
}

// The same days may come as a statement and as a table, with other names and texts: what differs from a
// stored movement only by these is not stored by itself. Two tables are compared by all five fields alone. A
// stored movement that a row is throughout is that row and no other one.
void TImportVirements::ReconnaitreProches() {
  const auto connus = LireConnus(controleur_.Base());
  TExtraits& extraits = controleur_.Extraits();
  std::unordered_set<int> reconnus;
  for (const TRangeeVirement& rangee : rangees_) {
    if (rangee.Etat == TEtatMouvement::Nouveau) continue;
    const TExtraits& liste = rangee.Extrait != nullptr ? extraits : controleur_.ExtraitsPrecedents();
    for (const TExtrait* jumeau : liste.Identiques(*EnExtrait(rangee.Lu)))  // a row of the file for each
      if (reconnus.insert(jumeau->Id).second) break;
  }
  std::optional<TProches> proches;
  for (TRangeeVirement& rangee : rangees_) {
    if (rangee.Etat != TEtatMouvement::Nouveau ||
        (!parSonCompte_ && !(connus && connus->Couvre(rangee.Lu.Date))))
      continue;
    if (!proches) {
      proches.emplace();
      proches->Ajouter(extraits, reconnus);
      proches->Ajouter(controleur_.ExtraitsPrecedents(), reconnus);
    }
    if (proches->Contient(*EnExtrait(rangee.Lu))) rangee.Etat = TEtatMouvement::DejaImporte;
  }
}

int TImportVirements::NombreAMemoriser() const {
  return static_cast<int>(std::ranges::count_if(rangees_, AMemoriser));
}

int TImportVirements::NombreDejaImportes() const {
  return static_cast<int>(std::ranges::count_if(rangees_, [](const TRangeeVirement& rangee) {
    return rangee.Etat == TEtatMouvement::DejaImporte && !rangee.Coche;
  }));
}

void TImportVirements::Cocher(int rangee, bool coche) {
  TRangeeVirement& choisie = rangees_.at(static_cast<std::size_t>(rangee));
  choisie.Coche = coche && choisie.Etat == TEtatMouvement::DejaImporte;
}

void TImportVirements::Oublier(const TExtrait* extrait) {
  std::erase_if(rangees_, [&](const TRangeeVirement& rangee) { return rangee.Extrait == extrait; });
}

void TImportVirements::Situer(TRangeeVirement& rangee) {
  rangee.Etat = EtatExtrait(*rangee.Extrait);
  rangee.EleveId = Globals.Eleves->ExtraitVersEleve(rangee.Extrait->Id);
}

// All movements are stored before the first is credited, so that whatever ends the crediting loses none; the
// statement counts as taken after that, so that it can be read again for the rest without a question.
void TImportVirements::Etape2() {
  TReglagesPoste& reglages = controleur_.Reglages();
  Globals.Eleves->ChargerExtraits = true;  // another workstation may have given some since step 1
  reprise_ = LireEnCours(reglages).contains(empreinte_);
  MarquerEnCours(reglages, empreinte_, true);
  try {
    TProgression progression(controleur_.Dialogues(), static_cast<int>(2 * rangees_.size()));
    Memoriser(progression);
    Crediter(progression);
    if (!entetes_.empty()) TRelevesConnus(controleur_.Base()).Retenir(entetes_);
    MarquerEnCours(reglages, empreinte_, false);
  } catch (...) {
    Resituer();
    throw;
  }
  Resituer();
}

void TImportVirements::Resituer() {
  Globals.Eleves->ChargerExtraits = true;
  for (TRangeeVirement& rangee : rangees_)
    if (rangee.Extrait != nullptr) Situer(rangee);
}

/// For each row the place of the last one that is its twin, both still to be stored.
std::vector<std::size_t> TImportVirements::DerniersJumeaux() const {
  std::unordered_map<TCleExtrait, std::size_t> derniers;
  std::vector<std::size_t> places(rangees_.size());
  for (std::size_t i = rangees_.size(); i-- > 0;)
    places[i] = AMemoriser(rangees_[i])
                    ? derniers.try_emplace(TCleExtrait(*EnExtrait(rangees_[i].Lu)), i).first->second
                    : i;
  return places;
}

// One row at a time, but twins with what stands between them: were only one of them stored, a later reading
// would take both for it.
void TImportVirements::Memoriser(TProgression& progression) {
  const std::vector<std::size_t> derniers = DerniersJumeaux();
  for (std::size_t premier = 0, fin = 0; premier < rangees_.size(); premier = fin) {
    fin = premier + 1;
    for (std::size_t i = premier; i < fin; ++i) fin = std::max(fin, derniers[i] + 1);
    MemoriserEnsemble(std::span(rangees_).subspan(premier, fin - premier));
    for (std::size_t i = premier; i < fin; ++i) {
      progression.Avancer(static_cast<int>(i) + 1, rangees_[i].Lu.Donneur);
      controleur_.Dialogues().TraiterEvenements();
    }
  }
}

/// All of them or none.
void TImportVirements::MemoriserEnsemble(std::span<TRangeeVirement> rangees) {
  TExtraits& extraits = controleur_.Extraits();
  std::optional<TTransactionCommune> ensemble;
  if (rangees.size() > 1) ensemble.emplace(controleur_.Base());
  std::vector<TRangeeVirement*> memorisees;
  try {
    for (TRangeeVirement& rangee : rangees) {
      if (!AMemoriser(rangee)) continue;
      rangee.Extrait = &::Memoriser(extraits, EnExtrait(rangee.Lu));
      memorisees.push_back(&rangee);
    }
    if (ensemble) ensemble->Valider();
  } catch (...) {
    for (TRangeeVirement* rangee : memorisees) extraits.Forget(*std::exchange(rangee->Extrait, nullptr));
    throw;
  }
  for (TRangeeVirement* rangee : memorisees) rangee->Etat = TEtatMouvement::Inconnu;
}

void TImportVirements::Crediter(TProgression& progression) {
  const bool compacte = Globals.Parametres->EstVrai(TParam::CompteCourant);
  TBilan bilan;
  passes_.clear();
  int fait = static_cast<int>(rangees_.size());
  for (const TRangeeVirement& rangee : rangees_) {
    CrediterRangee(rangee, compacte, bilan);
    progression.Avancer(++fait, rangee.Lu.Donneur);
    controleur_.Dialogues().TraiterEvenements();
  }
  statut_ +=
      u"\n\n%1 mouvements ont été comptabilisés.\n%2 mouvements sont inconnus."_s.arg(bilan.Comptabilises)
          .arg(bilan.Inconnus);
  if (!compacte) statut_ += u"\n%1 mouvements sont des régularisations."_s.arg(bilan.Regularisations);
  if (const int dejaImportes = NombreDejaImportes(); dejaImportes > 0)
    statut_ += u'\n' % TexteDejaImportes(dejaImportes) % u'.';
}

// Twins are all found in the first of them. Where the step was cut off before, the first may have its pupil
// and the others not yet: then each row of them takes its own.
const TExtrait* TImportVirements::ACrediter(const TRangeeVirement& rangee) const {
  if (!reprise_ || rangee.Extrait == nullptr) return rangee.Extrait;
  for (const TExtrait* jumeau : controleur_.Extraits().Identiques(*rangee.Extrait))
    if (!passes_.contains(jumeau->Id)) return jumeau;
  return rangee.Extrait;
}

void TImportVirements::CrediterRangee(const TRangeeVirement& rangee, bool compacte, TBilan& bilan) {
  const TExtrait* aCrediter = ACrediter(rangee);
  if (aCrediter == nullptr) {
    bilan.Regularisations += rangee.Etat == TEtatMouvement::AnneePrecedente ? 1 : 0;
    return;
  }
  const TExtrait& extrait = *aCrediter;
  passes_.insert(extrait.Id);
  const int annee = Globals.Eleves->AnneeScolaire;
  // The map stands as it was before the step: a second row of one movement counts like the first.
  if (!compacte && Globals.Eleves->ExtraitVersEleve(extrait.Id) != 0) return;
  std::optional<TAttribution> attribution;
  if (!parSonCompte_ || extrait.Montant >= Currency())  // what the school pays is nobody's payment
    attribution = compacte ? LireCommunicationCompacte(extrait.Communication, annee,
                                                       Globals.Parametres->EstVrai(TParam::AnneeDeSelection))
                           : LireCommunicationMois(extrait.Communication, annee);
  if (!attribution) {
    ++bilan.Inconnus;
    return;
  }
  ++bilan.Comptabilises;
  CrediterEleve(*attribution, extrait);
}
