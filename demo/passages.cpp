#include "demo/passages.h"

#include <algorithm>
#include <optional>

#include "demo/calendrier.h"
#include "demo/tirage.h"

namespace {

constexpr int kGarderie = 1, kRepas = 2, kSoupe = 3, kEtude = 4;
constexpr int kEntree = 1, kSortie = 2;
constexpr std::size_t kMercredi = 2;

constexpr int Minutes(int heure, int minute) { return 60 * heure + minute; }

// Bounds of the tariffs, in minutes of the day.
constexpr int kDebutMatin = Minutes(6, 20), kFinMatin = Minutes(8, 0);
constexpr int kDebutSoir = Minutes(16, 0);
constexpr int kDebutMercredi = Minutes(12, 10);

/// Badges that were replaced or belong to pupils who have left, and are still scanned.
const std::array<const char16_t*, 6> kBadgesInconnus{u"553700417", u"553700562", u"553700588",
                                                     u"553700631", u"553700702", u"21205771"};

/// What a family does on one day; -1 for not at all, else the minute.
struct TJourFamille {
  int Matin = -1;
  int Soir = -1;
};

class TScanneur {
 public:
  TScanneur(const TEcoleExemple& ecole, int site)
      : ecole_(ecole), site_(site), tirage_(ecole.Graine, 100 + static_cast<std::uint64_t>(site)) {
    TirerAbsences();
  }

  std::vector<TPassage> Annee() {
    for (rangJour_ = 0; rangJour_ < JoursEcole().size(); ++rangJour_) UneJournee(JoursEcole()[rangJour_]);
    return std::move(passages_);
  }

 private:
  void UneJournee(const QDate& jour);
  void TirerAbsences();
  std::vector<TJourFamille> TirerFamilles();
  void Journee(const TEleveExemple& eleve, const TJourFamille& famille);
  void Matin(const TEleveExemple& eleve, int minute);
  void Midi(const TEleveExemple& eleve);
  void Mercredi(const TEleveExemple& eleve, int sortie);
  void Soir(const TEleveExemple& eleve, int sortie);
  void Sortir(const TEleveExemple& eleve, int minute);
  void Inconnu();
  void Samedi(const QDate& vendredi);
  void RangerJournee(std::size_t premier);
  bool Present(std::size_t eleve) const;
  int FinActivite(const TEleveExemple& eleve) const;
  void Scanner(const QString& matricule, int type, int minute, int seconde, int sens);
  void Scanner(const TEleveExemple& eleve, int type, int minute, int sens) {
    QString code = eleve.Matricule;
    // Brothers and sisters come past one behind the other.
    Scanner(code.remove(u'-'), type, minute, 5 * eleve.Rang + tirage_.Entier(0, 35), sens);
  }

  const TEcoleExemple& ecole_;
  int site_;
  TTirage tirage_;
  std::vector<std::vector<bool>> absences_;  // by pupil and school day
  std::vector<TPassage> passages_;
  QDate jour_;
  std::size_t semaine_ = 0;  // weekday, Monday 0
  std::size_t rangJour_ = 0;
};

/// Illnesses of one to five days, more of them in winter and in the nursery.
void TScanneur::TirerAbsences() {
  const auto& jours = JoursEcole();
  const QDate depaysement(2017, 2, 6);
  for (const TEleveExemple& eleve : ecole_.Eleves) {
    std::vector<bool> absent(jours.size(), false);
    for (std::size_t j = 0; j < jours.size(); ++j) {
      const int mois = jours[j].month();
      const int risque = (eleve.Niveau < 3 ? 22 : 13) + (mois == 12 || mois < 3 ? 10 : 0);
      if (tirage_.Chance(risque)) {
        const auto fin = std::min(jours.size(), j + 1 + tirage_.Poids({40, 30, 15, 10, 5}));
        while (j < fin) absent[j++] = true;
      }
    }
    // The two oldest classes spend a week away.
    for (std::size_t j = 0; j < jours.size(); ++j)
      if (eleve.Niveau >= 7 && jours[j] >= depaysement && jours[j] < depaysement.addDays(5)) absent[j] = true;
    absences_.push_back(std::move(absent));
  }
}

std::vector<TJourFamille> TScanneur::TirerFamilles() {
  std::vector<TJourFamille> journees;
  for (const TFamilleExemple& famille : ecole_.Familles) {
    const THabitudesFamille& h = famille.Habitudes;
    TJourFamille journee;
    if (tirage_.Chance(h.Matin[semaine_])) journee.Matin = tirage_.Autour(h.MinuteMatin, 4);
    const int moyenne = semaine_ == kMercredi ? h.MinuteMercredi : h.MinuteSoir;
    if (tirage_.Chance(h.Soir[semaine_])) journee.Soir = tirage_.Autour(moyenne, 10);
    journees.push_back(journee);
  }
  return journees;
}

bool TScanneur::Present(std::size_t eleve) const {
  const TEleveExemple& e = ecole_.Eleves[eleve];
  return e.Site == site_ && jour_ >= e.Arrivee && jour_ <= e.Depart && !absences_[eleve][rangJour_];
}

/// End of the pupil's activity of the day in minutes, 0 when there is none.
int TScanneur::FinActivite(const TEleveExemple& eleve) const {
  for (const TInscriptionExemple& inscription : ecole_.Inscriptions) {
    const TActiviteExemple& a = ecole_.Activites[static_cast<std::size_t>(inscription.Activite)];
    if (&ecole_.Eleves[static_cast<std::size_t>(inscription.Eleve)] == &eleve &&
        static_cast<std::size_t>(a.Jour) == semaine_ && jour_ >= a.Premier && jour_ <= a.Dernier)
      return Minutes(a.Fin.left(2).toInt(), a.Fin.mid(3).toInt());
  }
  return 0;
}

void TScanneur::Scanner(const QString& matricule, int type, int minute, int seconde, int sens) {
  const int instant = 60 * minute + std::min(seconde, 59);
  passages_.push_back({matricule, type, jour_, instant, sens});
  // The beep was not heard, the badge goes past once more.
  if (tirage_.Chance(7)) passages_.push_back({matricule, type, jour_, instant + tirage_.Entier(3, 75), sens});
}

void TScanneur::UneJournee(const QDate& jour) {
  jour_ = jour;
  semaine_ = JourSemaine(jour);
  const std::size_t premier = passages_.size();
  const auto familles = TirerFamilles();
  for (std::size_t e = 0; e < ecole_.Eleves.size(); ++e)
    if (Present(e)) Journee(ecole_.Eleves[e], familles[static_cast<std::size_t>(ecole_.Eleves[e].Famille)]);
  for (const TProfesseurExemple& professeur : ecole_.Professeurs) {
    QString code = professeur.Matricule;
    if (professeur.Site == site_ && EstJourRepas(jour) && tirage_.Chance(professeur.Repas[semaine_]))
      Scanner(code.remove(u'-'), kRepas, Minutes(12, tirage_.Entier(20, 55)), tirage_.Entier(0, 59), kEntree);
  }
  // A small school has as few of them as it has pupils.
  const int frequence = std::min(1000, 2 * static_cast<int>(ecole_.Eleves.size()));
  for (std::size_t n = tirage_.Poids({25, 40, 25, 10}); n > 0; --n)
    if (tirage_.Chance(frequence)) Inconnu();
  RangerJournee(premier);
  if (semaine_ == 4) Samedi(jour);
}

void TScanneur::Journee(const TEleveExemple& eleve, const TJourFamille& famille) {
  if (famille.Matin >= 0) Matin(eleve, famille.Matin);
  int sortie = famille.Soir;
  if (const int fin = FinActivite(eleve); fin > 0 && sortie < fin) sortie = fin + tirage_.Entier(1, 9);
  const bool dernierJour = jour_ == JoursEcole().back();
  if (semaine_ == kMercredi) {
    Mercredi(eleve, sortie);
  } else {
    Midi(eleve);
    if (!dernierJour) Soir(eleve, sortie);
  }
}

void TScanneur::Matin(const TEleveExemple& eleve, int minute) {
  if (minute < kDebutMatin) minute = kDebutMatin + tirage_.Entier(0, 15);
  // From eight o'clock on nobody scans any more, unless by mistake.
  if (minute >= kFinMatin && !tirage_.Chance(250)) return;
  Scanner(eleve, kGarderie, minute, tirage_.Chance(12) ? kSortie : kEntree);
}

void TScanneur::Midi(const TEleveExemple& eleve) {
  TMidi midi = eleve.Midi[semaine_];
  if (midi == TMidi::Rentre) return;
  if (!EstJourRepas(jour_)) midi = TMidi::Tartines;
  const bool petits = eleve.Niveau < 3;
  if (midi == TMidi::Repas && !tirage_.Chance(40)) {
    const int minute = petits ? Minutes(11, tirage_.Entier(38, 55)) : Minutes(12, tirage_.Entier(5, 40));
    const int type = tirage_.Chance(4) ? kGarderie : kRepas;  // the scanner stood on day-care
    Scanner(eleve, type, tirage_.Chance(6) ? Minutes(13, tirage_.Entier(31, 48)) : minute, kEntree);
    return;
  }
  const int minute = petits ? Minutes(12, tirage_.Entier(1, 18)) : Minutes(12, tirage_.Entier(8, 42));
  Scanner(eleve, kGarderie, minute, tirage_.Chance(6) ? kSortie : kEntree);
  if (midi == TMidi::TartinesEtSoupe && tirage_.Chance(850)) Scanner(eleve, kSoupe, minute + 1, kEntree);
}

void TScanneur::Mercredi(const TEleveExemple& eleve, int sortie) {
  // School ends at ten past twelve: what is scanned before has no tariff, and there is no study.
  if (sortie < 0 && tirage_.Chance(6)) Scanner(eleve, kGarderie, Minutes(12, tirage_.Entier(1, 8)), kSortie);
  if (eleve.Etude && tirage_.Chance(2)) Scanner(eleve, kEtude, Minutes(16, tirage_.Entier(20, 30)), kSortie);
  if (sortie < kDebutMercredi) return;
  if (EstJourRepas(jour_) && sortie > Minutes(13, 0)) {
    const int minute = Minutes(12, tirage_.Entier(18, 40));
    if (eleve.Midi[kMercredi] == TMidi::Repas) Scanner(eleve, kRepas, minute, kEntree);
    if (eleve.Midi[kMercredi] == TMidi::TartinesEtSoupe) Scanner(eleve, kSoupe, minute, kEntree);
  }
  Sortir(eleve, sortie);
}

void TScanneur::Soir(const TEleveExemple& eleve, int sortie) {
  const bool etude = EstJourEtude(jour_) && tirage_.Chance(eleve.JoursEtude[semaine_]);
  if (etude) {
    // Whatever the scanner says, the study is scanned when it ends.
    Scanner(eleve, kEtude, Minutes(16, tirage_.Entier(18, 30)), tirage_.Chance(150) ? kEntree : kSortie);
    if (sortie < Minutes(16, 36)) return;
  }
  if (sortie < 0) return;
  if (sortie < kDebutSoir && !tirage_.Chance(200)) return;  // the playground is free until four
  Sortir(eleve, sortie);
}

void TScanneur::Sortir(const TEleveExemple& eleve, int minute) {
  if (tirage_.Chance(15)) return;  // forgotten: the badge stayed in the school bag
  if (tirage_.Chance(8)) minute = Minutes(18, tirage_.Entier(4, 40));  // a traffic jam
  Scanner(eleve, kGarderie, minute, tirage_.Chance(1) ? kEntree : kSortie);
}

void TScanneur::Inconnu() {
  const bool matin = tirage_.Chance(400);
  const int type = matin ? kGarderie : tirage_.Choix(std::array{kGarderie, kRepas, kSoupe});
  const int minute = matin ? Minutes(7, tirage_.Entier(5, 55)) : Minutes(12, tirage_.Entier(5, 40));
  QString matricule = QString::fromUtf16(tirage_.Choix(kBadgesInconnus));
  // A number typed by hand, with its dash, is as unknown as another.
  if (tirage_.Chance(120)) matricule = tirage_.Choix(ecole_.Eleves).Matricule;
  Scanner(matricule, type, minute, tirage_.Entier(0, 59), kEntree);
}

/// Twice a year the scanner serves at a feast, where it should not have been on.
void TScanneur::Samedi(const QDate& vendredi) {
  jour_ = vendredi.addDays(1);
  if (jour_ != QDate(2016, 11, 26) && jour_ != QDate(2017, 5, 20)) return;
  const std::size_t premier = passages_.size();
  for (std::size_t e = 0; e < ecole_.Eleves.size(); ++e)
    if (ecole_.Eleves[e].Site == site_ && tirage_.Chance(8))
      Scanner(ecole_.Eleves[e], tirage_.Choix(std::array{kGarderie, kEtude}),
              Minutes(16, tirage_.Entier(5, 59)), kSortie);
  RangerJournee(premier);
}

/// One scanner reads one badge at a time: in order, two seconds apart at least.
void TScanneur::RangerJournee(std::size_t premier) {
  const auto debut = passages_.begin() + static_cast<std::ptrdiff_t>(premier);
  std::stable_sort(debut, passages_.end(),
                   [](const auto& a, const auto& b) { return a.Seconde < b.Seconde; });
  for (std::size_t i = premier + 1; i < passages_.size(); ++i)
    passages_[i].Seconde = std::max(passages_[i].Seconde, passages_[i - 1].Seconde + 2);
}

}  // namespace

std::vector<TPassage> PassagesAnnee(const TEcoleExemple& ecole, int site) {
  return TScanneur(ecole, site).Annee();
}
