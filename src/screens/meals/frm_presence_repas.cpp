#include "screens/meals/frm_presence_repas.h"

#include "core/calendrier_scolaire.h"
#include "core/comparaisons.h"
#include "core/exceptions.h"
#include "core/formats.h"

using namespace Qt::StringLiterals;

namespace {

/// What is wrong with a day for serving meals: outside the school year, at a weekend, before the last meal
/// noted.
QString AvertissementHorloge(TDateTime jour, int annee, TDateTime dernier) {
  const TPeriode bornes = BornesAnnee(annee);
  if (jour < bornes.Premier || jour > bornes.Dernier)
    return u"Cette date est hors de l'année scolaire %1 - %2 : vérifiez l'horloge de la tablette."_s
        .arg(annee)
        .arg(annee + 1);
  if (jour < dernier)
    return u"Cette date vient avant le dernier repas noté (%1) : vérifiez l'horloge de la tablette."_s.arg(
        FormatDate(dernier));
  if (JourLundi1(jour) > 5) return u"C'est le week-end : vérifiez l'horloge de la tablette."_s;
  return {};
}

}  // namespace

TFrmPresenceRepas::TFrmPresenceRepas(TContexteEcran& contexte) : contexte_(contexte) {}

TDateTime TFrmPresenceRepas::Aujourdhui() const { return contexte_.Controleur.Horloge().Aujourdhui(); }

// A damaged copy leaves the screen empty, and says so.
void TFrmPresenceRepas::FormShow() {
  const TReglagesPoste& reglages = contexte_.Controleur.Reglages();
  service_.reset();
  annee_.clear();
  classe_ = nullptr;
  recherche_.clear();
  jourMontre_ = Aujourdhui();
  empechement_ = PourquoiSansService(Globals.ModeHorsLigne, reglages);
  if (empechement_.isEmpty()) try {
      service_.emplace(reglages, contexte_.Dialogues());
      Globals.AnneeScolaire = service_->AnneeTravail();
    } catch (const Exception& e) {
      empechement_ = e.Message;
    }
  Annoncer();
}

QString TFrmPresenceRepas::lblDate() const { return FormatJourLong(jourMontre_); }

QString TFrmPresenceRepas::AvertissementDate() const {
  return service_
             ? AvertissementHorloge(jourMontre_, service_->Eleves().AnneeScolaire, service_->DernierJour())
             : QString();
}

void TFrmPresenceRepas::Horloge() {
  if (jourMontre_ == Aujourdhui()) return;
  jourMontre_ = Aujourdhui();
  Annoncer();
}

QString TFrmPresenceRepas::NoteEnAttente() const {
  const int nombre = service_ ? service_->NombreEnAttente() : 0;
  return nombre == 0 ? u"Aucun repas à transférer"_s : u"%1 repas à transférer"_s.arg(nombre);
}

QString TFrmPresenceRepas::NoteTransfert() const {
  if (!service_) return {};
  const TDateTime moment = service_->DateTransfert();
  return u"Élèves copiés le %1 à %2"_s.arg(FormatDate(moment), FormatHeure(moment));
}

std::vector<QString> TFrmPresenceRepas::Annees() const {
  return service_ ? service_->Annees() : std::vector<QString>();
}

void TFrmPresenceRepas::btnAnneeClick(const QString& annee) {
  annee_ = annee;
  classe_ = nullptr;
  Annoncer();
}

QString TFrmPresenceRepas::Compte(const TClasse& classe) const {
  return u"%1 sur %2"_s.arg(service_->NombreServis(classe, jourMontre_)).arg(classe.NombreEleves());
}

std::vector<TFrmPresenceRepas::TBoutonClasse> TFrmPresenceRepas::ClassesDeLAnnee() const {
  std::vector<TBoutonClasse> boutons;
  if (!service_ || annee_.isEmpty()) return boutons;
  for (const auto& classe : service_->Eleves().Classes())
    if (classe->CodeClasse == annee_)
      boutons.push_back({classe.get(), classe->Libelle(), Compte(*classe),
                         classe.get() == classe_ && recherche_.isEmpty()});
  return boutons;
}

void TFrmPresenceRepas::btnClasseClick(TClasse& classe) {
  classe_ = &classe;
  recherche_.clear();
  Annoncer();
}

void TFrmPresenceRepas::btnRetourClick() {
  annee_.clear();
  recherche_.clear();
  classe_ = nullptr;
  Annoncer();
}

QString TFrmPresenceRepas::lblClasse() const {
  if (!recherche_.isEmpty()) return u"Recherche : " % recherche_;
  return classe_ != nullptr ? QString(classe_->Libelle() % u"  ·  " % Compte(*classe_)) : QString();
}

void TFrmPresenceRepas::edRechercheChange(const QString& texte) {
  recherche_ = texte.trimmed();
  Annoncer();
}

std::vector<TEleve*> TFrmPresenceRepas::Montres() const {
  if (!service_) return {};
  if (recherche_.isEmpty()) return classe_ != nullptr ? classe_->ListeEleves : std::vector<TEleve*>();
  std::vector<TEleve*> trouves;
  for (TEleve& eleve : service_->Eleves())
    if (ContientMots(eleve.NomComplet(), recherche_)) trouves.push_back(&eleve);
  return trouves;
}

std::vector<TFrmPresenceRepas::TCadre> TFrmPresenceRepas::Cadres() const {
  std::vector<TCadre> cadres;
  for (TEleve* eleve : Montres()) {
    const bool servi = service_->EstServi(*eleve, jourMontre_);
    const bool transfere = service_->EstTransfere(*eleve, jourMontre_);
    cadres.push_back({eleve, eleve->Nom, eleve->Prenom,
                      servi       ? u"Repas complet"_s
                      : transfere ? u"transféré"_s
                                  : QString(),
                      servi, eleve->FlgRadie});
  }
  return cadres;
}

QImage TFrmPresenceRepas::Photo(const TEleve& eleve) {
  try {
    return eleve.GetPhoto();
  } catch (const Exception&) {  // a damaged picture is none
    return {};
  }
}

void TFrmPresenceRepas::CadreClick(TEleve& eleve) {
  if (!service_) return;
  jourMontre_ = Aujourdhui();
  service_->Toucher(eleve, jourMontre_);
  Annoncer();
}
