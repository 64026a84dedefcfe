#include "screens/attendance/frm_releve_calendrier.h"

#include <algorithm>

#include "attendance/presences.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "pupils/eleves.h"
#include "workflows/memoriser.h"

using namespace Qt::StringLiterals;

namespace {

/// In the order of the list.
const struct {
  TTypePresence Type;
  TTypeFamille Famille;
  TService Service;
} kTypes[] = {{TTypePresence::Etude, TTypeFamille::Etude, TService::Etude},
              {TTypePresence::Repas, TTypeFamille::Repas, TService::Repas}};

bool EstUnJourDeService(TDateTime date) {
  const int jour = JourLundi1(date);
  return jour != 3 && jour < 6;
}

}  // namespace

TFrmReleveCalendrier::TFrmReleveCalendrier(const TContexteEcran& contexte, const TEleve& eleve,
                                           TVuCalendrier& vu)
    : contexte_(contexte),
      eleve_(eleve),
      vu_(vu),
      nom_(eleve.NomComplet()),
      annee_(BornesAnnee(eleve.Eleves->AnneeScolaire)) {
  if (vu_.Date == 0.0) vu_.Date = contexte.Controleur.Horloge().Aujourdhui();
  vu_.Date = std::clamp(vu_.Date, annee_.Premier, annee_.Dernier);
  Marquer();
}

QStringList TFrmReleveCalendrier::Types() { return {u"etudes"_s, u"repas"_s}; }

void TFrmReleveCalendrier::TypeChange(int type) {
  vu_.Type = type;
  Marquer();
  Annoncer();
}

void TFrmReleveCalendrier::DateChange(TDateTime date) {
  if (date >= annee_.Premier && date <= annee_.Dernier) vu_.Date = date;
}

// What the service charges, not what is stored.
void TFrmReleveCalendrier::Marquer() {
  marques_.clear();
  if (vu_.Type < 0) return;
  TLignesService lignes;
  eleve_.CoutService(kTypes[vu_.Type].Service, annee_, lignes);
  for (const TLigneService& ligne : lignes) marques_.insert(ligne.Presence->DateReleve);
}

void TFrmReleveCalendrier::PlannerCalendar1DblClick() {
  const TDateTime date = vu_.Date;
  if (!EstUnJourDeService(date)) return Noter(u"Ni mercredi ni week-end : rien n'a été ajouté."_s);
  if (vu_.Type < 0) return contexte_.Dialogues().Message(u"Veuillez sélectionner un type de relevé"_s);
  auto releve = std::make_unique<TPresence>();
  releve->EleveId = eleve_.Id;
  releve->TypePresence = kTypes[vu_.Type].Type;
  releve->DateReleve = date;
  releve->HeureEntree = Globals.TarifsGarderies->DebutFamille(kTypes[vu_.Type].Famille);
  if (Globals.Parametres->EstVrai(TParam::PlusieursImplantations))
    releve->CodeImplantation = eleve_.CodeImplantation;
  const TPresence* ajoute = Globals.Presences->AjoutePresence(std::move(releve));
  try {
    Globals.Presences->Save();
    if (ajoute != nullptr) ExigerCle(*ajoute);
  } catch (const Exception& e) {
    Globals.Presences->Remettre();
    Noter(u"Rien n'a été enregistré."_s);
    return contexte_.Dialogues().Message(e.Message);
  }
  marques_.insert(date);
  Noter(ajoute != nullptr ? QString(FormatJour(date) % u" : ajouté.")
                          : QString(FormatJour(date) %
                                    u" : marqué, mais il y avait déjà un relevé ; rien n'a été ajouté."));
}

void TFrmReleveCalendrier::Noter(const QString& texte) {
  note_ = texte;
  Annoncer();
}
