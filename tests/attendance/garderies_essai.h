#pragma once
#include "attendance/presences.h"
#include "services/activites.h"
#include "services/tarifs_garderies.h"
#include "support/ecole_essai.h"

/// A school with one window a service; described first, then loaded.
struct TGarderiesEssai : TEssaiEcole {
  std::unique_ptr<TTarifsGarderies> tarifs;
  std::unique_ptr<TActivites> activites;
  std::unique_ptr<TActivitesEleves> inscriptions;
  TReglesEcole regles;
  std::unique_ptr<TPresences> presences;
  TLignesService lignes;

  TGarderiesEssai() { base->EcrituresForcees(false); }
  void tarifsUsuels() {
    using namespace Essai;
    ecole.tarif(Matin, TousLesJours, "07:00", "08:00", Forfait, "1", ScanEntree, "0.5");
    ecole.tarif(Midi, TousLesJours, "12:00", "13:30", Forfait, "0.8", ScanPresence, "0.4");
    ecole.tarif(Soir, LundiMardiJeudiVendredi, "15:30", "18:00", DemiHeure, "0.5", ScanSortie, "0.25");
    ecole.tarif(Mercredi, 3, "14:00", "18:00", DemiHeure, "0.5", ScanSortie, "0.25");
    ecole.tarif(FamilleEtude, LundiMardiJeudiVendredi, "15:30", "16:30", Forfait, "1.2", ScanSortie, "0.6");
    ecole.tarif(FamilleSoupe, TousLesJours, "11:30", "13:30", Forfait, "0.7", ScanPresence, "0.1");
    ecole.tarif(FamilleRepas, TousLesJours, "11:30", "13:30", Forfait, "9", ScanPresence);
  }
  void charger(bool deductionEtude = false) {
    regles.DeductionEtude = deductionEtude;
    tarifs = std::make_unique<TTarifsGarderies>(*base);
    activites = std::make_unique<TActivites>(*base, ecole.Annee);
    inscriptions = std::make_unique<TActivitesEleves>(*base, *activites);
    presences = std::make_unique<TPresences>(*base, BornesAnnee(ecole.Annee), regles);
    presences->Tarifs = tarifs.get();
  }
  /// The texts of the lines, joined by blanks.
  std::string textes() const {
    QStringList liste;
    for (const TLigneService& ligne : lignes) liste += ligne.Texte();
    return liste.join(u' ').toStdString();
  }
  std::string soir(int eleve, const char* date, bool deuxieme = false) {
    return Euros(presences->CoutGarderieSoir(eleve, {J(date), J(date)}, deuxieme, TTypeActivitesExt::Aucune,
                                             inscriptions.get(), lignes));
  }
  std::string mercredi(int eleve, const char* date) {
    return Euros(presences->CoutGarderieMercredi(eleve, {J(date), J(date)}, false, TTypeActivitesExt::Aucune,
                                                 inscriptions.get(), lignes));
  }
};

inline std::unique_ptr<TPresence> Presence(int eleve, int type, const char* date, const char* entree,
                                           const char* sortie) {
  auto presence = std::make_unique<TPresence>();
  presence->EleveId = eleve;
  presence->TypePresence = static_cast<TTypePresence>(type);
  presence->DateReleve = J(date);
  presence->HeureEntree = H(entree);
  presence->HeureSortie = H(sortie);
  return presence;
}
