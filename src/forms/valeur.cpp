#include "forms/valeur.h"

#include "core/accord.h"
#include "core/comparaisons.h"
#include "core/formats.h"
#include "core/mois.h"

using namespace Qt::StringLiterals;

namespace {

template <class T>
T Lire(const TValeurVue& valeur) {
  const T* lue = std::get_if<T>(&valeur);
  return lue ? *lue : T{};
}

QString EntierEnTexte(const TValeurVue& v) { return QString::number(Lire<int>(v)); }
QString ElevesEnTexte(const TValeurVue& v) { return CompterEleves(Lire<int>(v)); }
QString MontantEnTexte(const TValeurVue& v) {
  if (const auto* m = std::get_if<TMontantNote>(&v)) return FormatDeuxDecimales(m->Montant) % u" €" % m->Note;
  return FormatMontant(Lire<Currency>(v));
}
QString DecimalesEnTexte(const TValeurVue& v) {
  const auto* m = std::get_if<TMontantNote>(&v);
  return FormatPrix(m != nullptr ? m->Montant : Lire<Currency>(v));
}
QString PrixEnTexte(const TValeurVue& v) { return FormatPrix(Lire<Currency>(v)) % u" €"; }
bool EstJour(const TValeurVue& v) {
  return std::holds_alternative<TDateTime>(v) || std::holds_alternative<TJourAnnee>(v);
}
TDateTime JourDe(const TValeurVue& v) {
  const auto* avecAnnee = std::get_if<TJourAnnee>(&v);
  return avecAnnee != nullptr ? avecAnnee->Date : Lire<TDateTime>(v);
}
QString DateEnTexte(const TValeurVue& v) { return FormatDate(JourDe(v)); }
QString DateCourteEnTexte(const TValeurVue& v) {
  return LocaleEcole().toString(DateVersQt(Lire<TDateTime>(v)), u"ddd dd/MM"_s);
}
QString DateLongueEnTexte(const TValeurVue& v) {
  if (std::holds_alternative<TJourAnnee>(v)) return FormatJourLong(JourDe(v));
  const TDateTime date = Lire<TDateTime>(v);
  return date == 0.0 ? QString() : FormatJour(date);
}
QString HeureEnTexte(const TValeurVue& v) { return FormatHeureCourte(Lire<TDateTime>(v)); }
QString HeureHEnTexte(const TValeurVue& v) { return FormatHeure(Lire<TDateTime>(v)); }
QString MoisEnTexte(const TValeurVue& v) { return NomMois(Lire<int>(v)); }
QString Rien(const TValeurVue&) { return {}; }

/// The months of a school year begin with September.
int RangScolaire(int mois) { return mois == 0 ? 0 : (mois + 3) % 12 + 1; }

struct TGenreDecrit {
  QString (*Montrer)(const TValeurVue&);
  QString (*Brut)(const TValeurVue&);
  bool ADroite = false;
};

/// In the order of TGenre.
constexpr TGenreDecrit kGenres[] = {
    {Rien, Rien},
    {EntierEnTexte, EntierEnTexte, true},
    {MontantEnTexte, DecimalesEnTexte, true},
    {PrixEnTexte, DecimalesEnTexte, true},
    {DateEnTexte, DateEnTexte},
    {DateCourteEnTexte, DateEnTexte},
    {DateLongueEnTexte, DateEnTexte},
    {HeureEnTexte, HeureEnTexte, true},
    {HeureHEnTexte, HeureEnTexte, true},
    {ElevesEnTexte, EntierEnTexte, true},
    {MoisEnTexte, MoisEnTexte},
    {Rien, Rien},
};
static_assert(std::size(kGenres) == static_cast<std::size_t>(TGenre::Etat) + 1);

const TGenreDecrit& Genre(TGenre genre) { return kGenres[static_cast<std::size_t>(genre)]; }

template <class T>
int Signe(const T& a, const T& b) {
  return a < b ? -1 : b < a ? 1 : 0;
}

}  // namespace

QString TexteDe(TGenre genre, const TValeurVue& valeur) {
  if (std::holds_alternative<std::monostate>(valeur)) return {};
  const auto* texte = std::get_if<QString>(&valeur);
  return texte ? *texte : Genre(genre).Montrer(valeur);
}

QString TexteBrut(TGenre genre, const TValeurVue& valeur) {
  if (std::holds_alternative<std::monostate>(valeur)) return {};
  const auto* texte = std::get_if<QString>(&valeur);
  return texte ? *texte : Genre(genre).Brut(valeur);
}

int ComparerValeurs(TGenre genre, const TValeurVue& a, const TValeurVue& b) {
  if (EstJour(a) && EstJour(b)) return Signe(JourDe(a), JourDe(b));
  if (a.index() != b.index()) return Signe(a.index(), b.index());
  if (const auto* texte = std::get_if<QString>(&a)) return ComparerTextes(*texte, std::get<QString>(b));
  if (genre == TGenre::Mois) return Signe(RangScolaire(Lire<int>(a)), RangScolaire(Lire<int>(b)));
  return Signe(a, b);
}

bool EstADroite(TGenre genre) { return Genre(genre).ADroite; }
