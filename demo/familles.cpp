#include "demo/familles.h"

#include <QStringList>
#include <algorithm>

#include "demo/calendrier.h"
#include "demo/noms.h"

using namespace Qt::StringLiterals;

namespace {

using TPlaces = std::array<std::array<int, kNiveaux>, 2>;  // free seats by site and level

constexpr TPlaces kPlaces{{{37, 39, 40, 40, 39, 39, 39, 39, 38}, {16, 17, 17, 17, 17, 17, 16, 17, 16}}};
constexpr TPlaces kPlacesPetites{{{4, 4, 4, 4, 4, 4, 4, 4, 3}, {1, 2, 2, 2, 2, 2, 1, 2, 1}}};

constexpr int kDernierNiveau = kNiveaux - 1;
constexpr std::array kBanques{1, 63, 68, 103, 310, 363, 732, 743, 850, 979};

int TotalPlaces(const TPlaces& places) {
  int total = 0;
  for (const auto& site : places)
    for (const int libres : site) total += libres;
  return total;
}

/// Letters without their accents, for an order that a reader expects.
QString CleAlphabetique(const QString& texte) {
  QString cle;
  for (const QChar lettre : texte.normalized(QString::NormalizationForm_D))
    if (lettre.isLetter() || lettre == u' ') cle += lettre.toUpper();
  return cle;
}

QString NumeroMaison(TTirage& tirage) {
  QString numero = QString::number(tirage.Entier(1, 160));
  if (tirage.Chance(60)) return numero % QChar(u'A' + tirage.Entier(0, 2));
  if (tirage.Chance(50)) return numero % u" bte " % QString::number(tirage.Entier(1, 12));
  return numero;
}

void Loger(TAdulteExemple& adulte, std::size_t site, TTirage& tirage) {
  std::vector<int> poids;
  for (const TLocalite& localite : Localites(site)) poids.push_back(localite.Poids);
  const TLocalite& localite = Localites(site)[tirage.Poids(poids)];
  adulte.Adresse = tirage.Choix(localite.Rues);
  adulte.Numero = NumeroMaison(tirage);
  adulte.CodePostal = localite.CodePostal;
  adulte.Localite = localite.Nom;
}

const TOrigine& TirerOrigine(TTirage& tirage) {
  static const std::vector<int> poids = [] {
    std::vector<int> liste;
    for (const TOrigine& origine : Origines()) liste.push_back(origine.Poids);
    return liste;
  }();
  return Origines()[tirage.Poids(poids)];
}

/// What the children of one family share while they are being made.
struct TFoyer {
  const TOrigine* OriginePere = nullptr;
  QString NomEnfants;
};

TFoyer FonderFamille(TFamilleExemple& famille, std::size_t site, TTirage& tirage) {
  const TOrigine& pere = TirerOrigine(tirage);
  const TOrigine& mere = tirage.Chance(750) ? pere : TirerOrigine(tirage);
  TAdulteExemple papa, maman;
  papa.Nom = tirage.Choix(pere.Noms);
  papa.Prenom = tirage.Choix(pere.Peres);
  maman.Nom = tirage.Choix(mere.Noms);
  maman.Prenom = tirage.Choix(mere.Meres);
  Loger(maman, site, tirage);

  const int situation = tirage.Entier(1, 1000);
  const bool seule = situation > 900;
  famille.ParentsSepares = !seule && situation > 740;
  if (famille.ParentsSepares) {
    Loger(papa, site, tirage);
  } else {
    papa.Adresse = maman.Adresse;
    papa.Numero = maman.Numero;
    papa.CodePostal = maman.CodePostal;
    papa.Localite = maman.Localite;
  }

  TFoyer foyer{&pere, papa.Nom};
  const int nom = tirage.Entier(1, 1000);
  if (seule ? nom <= 500 : nom <= 70) foyer.NomEnfants = maman.Nom;
  if (nom > 940 && (papa.Nom.size() + maman.Nom.size()) < 30) foyer.NomEnfants = papa.Nom % u'-' % maman.Nom;

  const bool mereDAbord = seule || tirage.Chance(620);
  famille.Responsable = mereDAbord ? maman : papa;
  if (!seule && (famille.ParentsSepares || tirage.Chance(860)))
    famille.Responsable2 = mereDAbord ? papa : maman;
  const int banque = tirage.Choix(kBanques);
  famille.Compte = IbanBelge(banque, tirage.Entier(1000000, 9999999));
  famille.Titulaire = famille.Responsable.Nom % u' ' % famille.Responsable.Prenom;
  famille.Payeur = static_cast<TPayeur>(tirage.Poids({700, 140, 70, 50, 40}));
  return foyer;
}

/// The levels of the children of a new family, eldest first; takes their seats.
std::vector<int> NiveauxDesEnfants(TPlaces& places, std::size_t site, int premier, TTirage& tirage) {
  auto& libres = places[site];
  std::vector<int> niveaux{premier};
  --libres[static_cast<std::size_t>(premier)];
  const std::size_t nombre = 1 + tirage.Poids({520, 350, 110, 20});
  while (niveaux.size() < nombre) {
    const auto [bas, haut] = std::minmax_element(niveaux.begin(), niveaux.end());
    std::vector<int> possibles;
    for (int n = std::max(0, *bas - 3); n <= std::min(kDernierNiveau, *haut + 3); ++n) {
      const bool pris = std::find(niveaux.begin(), niveaux.end(), n) != niveaux.end();
      if (libres[static_cast<std::size_t>(n)] > 0 && (!pris || tirage.Chance(60))) possibles.push_back(n);
    }
    if (possibles.empty()) break;
    niveaux.push_back(tirage.Choix(possibles));
    --libres[static_cast<std::size_t>(niveaux.back())];
  }
  std::sort(niveaux.begin(), niveaux.end(), std::greater<>());
  return niveaux;
}

QDate DateDansAnnee(int annee, TTirage& tirage) { return QDate(annee, 1, 1).addDays(tirage.Entier(0, 364)); }

/// `aine` is the brother or sister just above; twins share its date.
QDate TirerNaissance(const TEleveExemple& eleve, const TEleveExemple* aine, TTirage& tirage) {
  if (aine != nullptr && aine->Niveau == eleve.Niveau) return aine->DateNaissance;
  int annee = kAnneeExemple - 3 - eleve.Niveau;
  if (aine == nullptr && eleve.Niveau > 3 && tirage.Chance(70)) --annee;  // has repeated a year
  if (eleve.Niveau == 0 && tirage.Chance(180)) return QDate(2014, 1, 1).addDays(tirage.Entier(0, 260));
  QDate date = DateDansAnnee(annee, tirage);
  while (aine != nullptr && aine->DateNaissance.daysTo(date) < 300 && date.month() < 12)
    date = date.addDays(tirage.Entier(20, 31));
  return date;
}

/// Nursery schools take a child at two and a half, after the next holiday.
QDate TirerArrivee(const QDate& naissance) {
  static const std::vector<QDate> rentrees{QDate(2016, 9, 1), QDate(2016, 11, 7), QDate(2017, 1, 9),
                                           QDate(2017, 3, 6)};
  const QDate age = naissance.addMonths(30);
  for (const QDate& rentree : rentrees)
    if (age <= rentree) return rentree;
  return QDate(2017, 4, 18);
}

QString TirerPrenom(const TFoyer& foyer, bool fille, const QStringList& deja, TTirage& tirage) {
  const TOrigine& origine =
      tirage.Chance(foyer.OriginePere->PrenomsFrancais) ? Origines().front() : *foyer.OriginePere;
  QString prenom;
  do prenom = tirage.Choix(fille ? origine.Filles : origine.Garcons);
  while (deja.contains(prenom));
  return prenom;
}

/// Twins go to one class; all others are dealt out.
void RepartirSousClasses(TEcoleExemple& ecole, TTirage& tirage, bool petite) {
  std::array<int, kNiveaux> compte{};
  for (std::size_t i = 0; i < ecole.Eleves.size(); ++i) {
    TEleveExemple& eleve = ecole.Eleves[i];
    eleve.Classe = QString::fromUtf16(kNomsNiveaux[static_cast<std::size_t>(eleve.Niveau)]);
    if (eleve.Site == 1) {
      eleve.SousClasse = u"C"_s;
      continue;
    }
    int& nombre = compte[static_cast<std::size_t>(eleve.Niveau)];
    const bool jumeau =
        i > 0 && eleve.Famille == ecole.Eleves[i - 1].Famille && eleve.Niveau == ecole.Eleves[i - 1].Niveau;
    const bool premiere = petite || (jumeau ? ecole.Eleves[i - 1].SousClasse == u"A" : nombre % 2 == 0);
    eleve.SousClasse = premiere ? u"A"_s : u"B"_s;
    if (!jumeau) nombre += tirage.Chance(100) ? 2 : 1;
  }
}

void NumeroterEleves(TEcoleExemple& ecole, TTirage& tirage) {
  // The register gives its numbers in the order in which pupils came: the oldest levels first.
  std::vector<TEleveExemple*> ordre;
  for (TEleveExemple& eleve : ecole.Eleves) ordre.push_back(&eleve);
  tirage.Melanger(ordre);
  std::stable_sort(ordre.begin(), ordre.end(),
                   [](const auto* a, const auto* b) { return a->Niveau > b->Niveau; });
  int numero = 800;
  for (TEleveExemple* eleve : ordre) {
    numero += tirage.Entier(1, 3);
    eleve->Matricule = u"5537-%1"_s.arg(numero, 5, 10, QLatin1Char('0'));
  }
}

/// Some families move house during the year.
void RadierFamilles(TEcoleExemple& ecole, TTirage& tirage, bool petite) {
  for (int i = 0; i < (petite ? 1 : 6); ++i) {
    const int famille = tirage.Entier(0, static_cast<int>(ecole.Familles.size()) - 1);
    const QDate depart = QDate(2016, 10, 14).addDays(7 * tirage.Entier(0, 30));
    for (TEleveExemple& eleve : ecole.Eleves)
      if (eleve.Famille == famille && eleve.Arrivee < depart) {
        eleve.Radie = true;
        eleve.Depart = depart;
      }
  }
}

void AjouterFamille(TEcoleExemple& ecole, TPlaces& places, std::size_t site, int niveau, TTirage& tirage) {
  TFamilleExemple famille;
  const TFoyer foyer = FonderFamille(famille, site, tirage);
  const bool detail = tirage.Chance(80), domiciliation = tirage.Chance(50), connu = tirage.Chance(350);
  const bool impot2 = !famille.Responsable2.Nom.isEmpty() && tirage.Chance(120);
  QStringList prenoms;
  int rang = 0;
  for (const int n : NiveauxDesEnfants(places, site, niveau, tirage)) {
    TEleveExemple eleve;
    eleve.Famille = static_cast<int>(ecole.Familles.size());
    eleve.Rang = ++rang;
    eleve.Site = static_cast<int>(site);
    eleve.Niveau = n;
    eleve.Nom = foyer.NomEnfants;
    eleve.Fille = tirage.Chance(490);
    eleve.Prenom = TirerPrenom(foyer, eleve.Fille, prenoms, tirage);
    prenoms.append(eleve.Prenom);
    eleve.DateNaissance = TirerNaissance(eleve, rang > 1 ? &ecole.Eleves.back() : nullptr, tirage);
    const bool venu = tirage.Chance(120) && !foyer.OriginePere->Naissance.isEmpty();
    eleve.LieuNaissance = venu ? foyer.OriginePere->Naissance : tirage.Choix(LieuxNaissance());
    eleve.Nationalite = venu ? foyer.OriginePere->Nationalite : Origines().front().Nationalite;
    eleve.Arrivee = TirerArrivee(eleve.DateNaissance);
    eleve.Depart = JoursEcole().back();
    eleve.FactureDetail = detail;
    eleve.Domiciliation = domiciliation;
    eleve.CompteConnu = connu;
    eleve.ImpotResponsable2 = impot2;
    ecole.Eleves.push_back(eleve);
  }
  ecole.Familles.push_back(famille);
}

}  // namespace

void PeuplerEcole(TEcoleExemple& ecole, TTirage& tirage, bool petite) {
  TPlaces places = petite ? kPlacesPetites : kPlaces;
  while (TotalPlaces(places) > 0) {
    std::vector<int> libres;
    for (const auto& site : places) libres.insert(libres.end(), site.begin(), site.end());
    const std::size_t choix = tirage.Poids(libres);
    AjouterFamille(ecole, places, choix / kNiveaux, static_cast<int>(choix % kNiveaux), tirage);
  }
  RepartirSousClasses(ecole, tirage, petite);
  NumeroterEleves(ecole, tirage);
  RadierFamilles(ecole, tirage, petite);
  const auto cle = [](const TEleveExemple& e) {
    return std::tuple(e.Site, e.Niveau, e.SousClasse, CleAlphabetique(e.Nom), CleAlphabetique(e.Prenom),
                      e.Matricule);
  };
  std::sort(ecole.Eleves.begin(), ecole.Eleves.end(),
            [&cle](const auto& a, const auto& b) { return cle(a) < cle(b); });
}

void EngagerProfesseurs(TEcoleExemple& ecole, TTirage& tirage, bool petite) {
  const TOrigine& origine = Origines().front();
  for (int i = 0; i < (petite ? 4 : 36); ++i) {
    TProfesseurExemple professeur;
    professeur.Nom = tirage.Choix(origine.Noms);
    professeur.Prenom = tirage.Choix(tirage.Chance(820) ? origine.Meres : origine.Peres);
    professeur.Matricule = u"5537-%1"_s.arg(i + 1, 5, 10, QLatin1Char('0'));
    professeur.Site = i % 10 < 7 ? 0 : 1;
    const int appetit = tirage.Choix(std::array{0, 0, 150, 400, 700});
    for (const std::size_t jour : {0U, 1U, 3U, 4U}) professeur.Repas[jour] = appetit;
    ecole.Professeurs.push_back(professeur);
  }
}
