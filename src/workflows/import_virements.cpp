#include "workflows/import_virements.h"

#include "core/exceptions.h"
#include "core/fichiers.h"
#include "payments/communication_structuree.h"
#include "payments/releve_bancaire.h"
#include "workflows/memoriser.h"

using namespace Qt::StringLiterals;

namespace {

/// What a shared file answers on the system of the office.
const QString kViolationDePartage = u"32"_s;

std::unique_ptr<TExtrait> EnExtrait(const TMouvement& lu) {
  auto extrait = std::make_unique<TExtrait>();
  extrait->DonneurOrdre = lu.Donneur;
  extrait->DateVirement = lu.Date;
  extrait->Montant = lu.Montant;
  extrait->Communication = lu.Communication;
  extrait->NumCptDonneur = lu.Compte;
  return extrait;
}

}  // namespace

QString Texte(TEtatMouvement etat) {
  static const QString textes[] = {u"Nouveau"_s,          u"Inconnu"_s, u"Comptabilisé"_s,
                                   u"Année précédente"_s, u"Caché"_s,   u"Illisible"_s};
  return textes[static_cast<int>(etat)];
}

TEtatMouvement EtatExtrait(const TExtrait& extrait) {
  if (extrait.FlgIgnore) return TEtatMouvement::Cache;
  return Globals.Eleves->ExtraitVersEleve(extrait.Id) != 0 ? TEtatMouvement::Comptabilise
                                                           : TEtatMouvement::Inconnu;
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
  if (!octets || !Lire(*octets)) return false;
  for (TRangeeVirement& rangee : rangees_) Reconnaitre(rangee);
  statut_ = u"Le fichier compte %1 mouvements."_s.arg(rangees_.size());
  return true;
}

bool TImportVirements::Lire(const QByteArray& octets) {
  const auto prendre = [&](std::vector<TMouvement>& mouvements) {
    for (TMouvement& lu : mouvements) rangees_.push_back({std::move(lu)});
  };
  auto bancaire = LireReleveBancaire(octets);
  parSonCompte_ = bancaire.has_value();
  if (bancaire) {
    if (bancaire->Preuves.isEmpty())
      prendre(bancaire->Mouvements);
    else
      controleur_.Dialogues().Message(bancaire->Preuves.join(u'\n') % u"\nRien n'a été mémorisé.");
    return bancaire->Preuves.isEmpty();
  }
  TReleveLu releve = LireReleve(
      octets, DispositionDuParametre(Globals.Parametres->GetParametre(TParam::TypeCompteBancaire)));
  prendre(releve.Mouvements);
  faute_ = std::move(releve.Faute);
  if (faute_) controleur_.Dialogues().Message(faute_->Message);
  return !faute_;
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

void TImportVirements::Situer(TRangeeVirement& rangee) {
  rangee.Etat = EtatExtrait(*rangee.Extrait);
  rangee.EleveId = Globals.Eleves->ExtraitVersEleve(rangee.Extrait->Id);
}

// All movements are stored before the first is credited, so that whatever ends the crediting loses none.
void TImportVirements::Etape2() {
  try {
    TProgression progression(controleur_.Dialogues(), static_cast<int>(2 * rangees_.size()));
    Memoriser(progression);
    Crediter(progression);
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

void TImportVirements::Memoriser(TProgression& progression) {
  TExtraits& extraits = controleur_.Extraits();
  int fait = 0;
  for (TRangeeVirement& rangee : rangees_) {
    if (rangee.Etat == TEtatMouvement::Nouveau) {
      rangee.Extrait = &::Memoriser(extraits, EnExtrait(rangee.Lu));
      rangee.Etat = TEtatMouvement::Inconnu;
    }
    progression.Avancer(++fait, rangee.Lu.Donneur);
  }
}

void TImportVirements::Crediter(TProgression& progression) {
  const bool compacte = Globals.Parametres->EstVrai(TParam::CompteCourant);
  TBilan bilan;
  int fait = static_cast<int>(rangees_.size());
  for (const TRangeeVirement& rangee : rangees_) {
    CrediterRangee(rangee, compacte, bilan);
    progression.Avancer(++fait, rangee.Lu.Donneur);
  }
  statut_ +=
      u"\n\n%1 mouvements ont été comptabilisés.\n%2 mouvements sont inconnus."_s.arg(bilan.Comptabilises)
          .arg(bilan.Inconnus);
  if (!compacte) statut_ += u"\n%1 mouvements sont des régularisations."_s.arg(bilan.Regularisations);
}

void TImportVirements::CrediterRangee(const TRangeeVirement& rangee, bool compacte, TBilan& bilan) const {
  if (rangee.Extrait == nullptr) {
    ++bilan.Regularisations;
    return;
  }
  const TExtrait& extrait = *rangee.Extrait;
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
  CrediterEleve(*attribution, extrait, 0, LibelleVirement(extrait));
}
