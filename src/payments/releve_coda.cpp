#include <algorithm>
#include <string>
#include <utility>

#include "core/chaines.h"
#include "core/exceptions.h"
#include "core/formats.h"
#include "core/texte_separe.h"
#include "payments/iban.h"
#include "payments/releve_bancaire.h"

using namespace Qt::StringLiterals;

// A file of records of 128 characters: 0 opens it, 1 is the old balance of a statement, 2 a movement, 3 more
// of its text, 8 the new balance, 9 closes it. Places count from 1, as the banks' description has them.

namespace {

constexpr std::size_t kLongueur = 128;
constexpr QStringView kTotal = u"0000";
/// Zeros, date, bank and application at the beginning of a record 0; the addressee's name may hold anything.
constexpr qsizetype kDebutEntete = 16;

class TEnregistrement {
 public:
  TEnregistrement(const QString& ligne, int numero) : texte_(ligne.toStdU32String()), numero_(numero) {
    texte_.resize(std::max(texte_.size(), kLongueur), U' ');
  }

  QString Champ(std::size_t place, std::size_t longueur) const {
    return QString::fromStdU32String(texte_.substr(place - 1, longueur));
  }
  char32_t Caractere(std::size_t place) const { return texte_[place - 1]; }
  /// Kind of record, and its part for those that have several: "0", "21", "33".
  QString Genre() const { return Champ(1, Caractere(1) == U'2' || Caractere(1) == U'3' ? 2 : 1); }

  [[noreturn]] void Refuser(const QString& raison) const {
    throw Exception(u"Ligne %1 : %2"_s.arg(numero_).arg(raison));
  }
  std::int64_t Nombre(std::size_t place, std::size_t longueur) const {
    const QString chiffres = Champ(place, longueur);
    if (!EstChiffres(chiffres)) Refuser(u"« %1 » n'est pas un nombre."_s.arg(chiffres));
    return chiffres.toLongLong();
  }
  /// Fifteen digits, three of them decimals.
  Currency Montant(std::size_t place) const { return Currency::Brut(Nombre(place, 15) * 10); }
  /// The same with its sign, 0 for a credit and 1 for a debit, at another place.
  Currency MontantSigne(std::size_t signe, std::size_t place) const {
    if (Caractere(signe) != U'0' && Caractere(signe) != U'1') Refuser(u"le sens du montant manque."_s);
    return Caractere(signe) == U'1' ? -Montant(place) : Montant(place);
  }
  /// ddmmyy; 0 for zeros and blanks.
  TDateTime Date(std::size_t place) const {
    const QString chiffres = Champ(place, 6);
    if (chiffres.trimmed().isEmpty() || chiffres == u"000000") return 0.0;
    const QDate date(2000 + static_cast<int>(Nombre(place + 4, 2)), static_cast<int>(Nombre(place + 2, 2)),
                     static_cast<int>(Nombre(place, 2)));
    if (!date.isValid()) Refuser(u"« %1 » n'est pas une date (jjmmaa)."_s.arg(chiffres));
    return DateDeQt(date);
  }

 private:
  std::u32string texte_;  // a character is one, also beyond the first plane
  int numero_;
};

/// A record 2.1 with all that follows it.
struct TArticle {
  QString Sequence, Detail;
  char32_t Type = U' ';
  bool Structuree = false;
  TMouvement Mouvement;
  QString Zone;        ///< the communication of 2.1, 2.2 and 2.3, a structured one with its code
  QStringList Libres;  ///< free texts of the records 3
  QString NomEntier;   ///< of the payer, from a record 3
};

/// What is counted between two records 0.
struct TComptes {
  int Enregistrements = 0;
  Currency Debits, Credits;
};

/// Where a structured communication holds its text, from the end of its code of three digits.
struct TStructure {
  QStringView Code;
  int Place, Longueur;
  bool Chiffres;  ///< twelve digits, and then nothing else is told
};

constexpr TStructure kStructures[] = {
    {u"101", 0, 12, true}, {u"102", 0, 12, true}, {u"105", 45, 12, true}, {u"127", 79, 62, false}};
constexpr QStringView kMontantOriginal = u"105";

bool SansChiffres(const QString& texte) { return !EstChiffres(texte) || texte.count(u'0') == texte.size(); }

/// Code and the rest of a structured communication as its text; true when it is twelve digits.
std::pair<QString, bool> TexteStructure(const QString& zone) {
  const QString reste = zone.mid(3);
  for (const TStructure& s : kStructures) {
    if (zone.first(3) != s.Code) continue;
    const QString texte = reste.mid(s.Place, s.Longueur);
    if (!s.Chiffres) return {texte, false};
    // There it is often left out, and the payer's own words come in records 3.
    if (s.Code == kMontantOriginal) return {SansChiffres(texte) ? QString() : texte, !SansChiffres(texte)};
    if (EstChiffres(texte)) return {texte, true};
  }
  return {reste, false};
}

QString Communication(const TArticle& article) {
  QString texte = article.Zone;
  if (article.Structuree) {
    const auto [structure, chiffres] = TexteStructure(article.Zone);
    if (chiffres) return structure;
    texte = structure;
  }
  for (const QString& libre : article.Libres) texte += u' ' + libre;
  return texte;
}

/// The account number without the currency and whatever else stands behind it.
QString SansSuite(const QString& compte) {
  static constexpr qsizetype kIbanBelge = 16, kDevise = 3;
  const QString mot = compte.trimmed().section(u' ', 0, 0);
  const auto sansDevise = [](const QString& texte) {
    if (texte.startsWith(u"BE")) return texte.first(std::min(kIbanBelge, texte.size()));
    const auto fin = texte.crbegin();
    const bool devise =
        texte.size() > kDevise && std::all_of(fin, fin + kDevise, [](QChar c) { return c.isLetter(); });
    return devise ? texte.chopped(kDevise) : texte;
  };
  // The last two are a number in groups of four, which is one when it is right.
  const QString uni = IbanSansBlancs(compte);
  for (const QString& numero : {mot, sansDevise(mot), sansDevise(uni), uni})
    if (IbanValide(numero)) return numero;
  return mot.startsWith(u"BE") ? sansDevise(mot) : mot;
}

class TLecteurCoda {
 public:
  TReleveBancaire Lire(const QStringList& lignes) {
    for (int i = 0; i < lignes.size(); ++i)
      if (!lignes[i].trimmed().isEmpty() && lignes[i] != u"\x1A") Enregistrement({lignes[i], i + 1});
    if (ouvert_) Clore(nullptr);
    return std::move(releve_);
  }

 private:
  void Enregistrement(const TEnregistrement& e) {
    static const struct {
      const char* Genre;
      void (TLecteurCoda::*Lire)(const TEnregistrement&);
      bool Compte;  // by the record 9
    } genres[] = {{"0", &TLecteurCoda::Entete, false},
                  {"1", &TLecteurCoda::AncienSolde, true},
                  {"21", &TLecteurCoda::Mouvement, true},
                  {"22", &TLecteurCoda::Suite, true},
                  {"23", &TLecteurCoda::Donneur, true},
                  {"31", &TLecteurCoda::Information, true},
                  {"32", &TLecteurCoda::InformationSuite, true},
                  {"33", &TLecteurCoda::InformationFin, true},
                  {"4", &TLecteurCoda::Rien, false},
                  {"8", &TLecteurCoda::NouveauSolde, true},
                  {"9", &TLecteurCoda::Fin, false}};
    const QString genre = e.Genre();
    const auto trouve =
        std::ranges::find_if(genres, [&](const auto& g) { return genre == QLatin1StringView(g.Genre); });
    if (trouve == std::end(genres)) e.Refuser(u"« %1 » n'est pas un enregistrement CODA."_s.arg(genre));
    if (genre != u"0" && !ouvert_) e.Refuser(u"l'enregistrement 0 manque."_s);
    comptes_.Enregistrements += trouve->Compte ? 1 : 0;
    (this->*trouve->Lire)(e);
  }

  void Rien(const TEnregistrement&) {}

  void Entete(const TEnregistrement& e) {
    if (e.Caractere(128) != U'2') e.Refuser(u"ce n'est pas un fichier CODA de la version 2."_s);
    if (ouvert_) Clore(nullptr);
    ouvert_ = true;
    comptes_ = {};
  }

  void AncienSolde(const TEnregistrement& e) {
    FinirReleve();
    const bool ancien = e.Caractere(2) == U'0';
    const QString devise = e.Champ(ancien ? 19 : 40, 3);
    if (devise != u"EUR") e.Refuser(u"le compte est en « %1 » et non en euros."_s.arg(devise.trimmed()));
    entete_.emplace();
    entete_->Compte = ancien ? e.Champ(6, 12).trimmed() : SansSuite(e.Champ(6, 34));
    entete_->Numero = e.Champ(126, 3).trimmed();
    entete_->AncienSolde = e.MontantSigne(43, 44);
    entete_->DateAncienSolde = e.Date(59);
  }

  void NouveauSolde(const TEnregistrement& e) {
    if (!entete_) e.Refuser(u"un nouveau solde vient sans ancien solde."_s);
    entete_->NouveauSolde = e.MontantSigne(42, 43);
    entete_->DateNouveauSolde = e.Date(58);
    FinirReleve();
  }

  void Mouvement(const TEnregistrement& e) {
    if (!entete_) e.Refuser(u"un mouvement vient sans ancien solde."_s);
    TArticle article;
    article.Sequence = e.Champ(3, 4);
    article.Detail = e.Champ(7, 4);
    article.Type = e.Caractere(54);
    article.Structuree = e.Caractere(62) == U'1';
    article.Zone = e.Champ(63, 53);
    article.Mouvement.Montant = e.MontantSigne(32, 33);
    article.Mouvement.Date = e.Date(48);
    if (article.Mouvement.Date == 0.0) article.Mouvement.Date = e.Date(116);
    if (article.Mouvement.Date == 0.0) e.Refuser(u"le mouvement n'a pas de date."_s);
    if (article.Detail == kTotal)
      FinirMouvement();
    else if (articles_.empty() || articles_.front().Sequence != article.Sequence)
      e.Refuser(u"le détail d'un mouvement vient sans son total."_s);
    articles_.push_back(std::move(article));
  }

  TArticle& Dernier(const TEnregistrement& e) {
    if (articles_.empty()) e.Refuser(u"la suite d'un mouvement vient sans lui."_s);
    return articles_.back();
  }

  void Suite(const TEnregistrement& e) { Dernier(e).Zone += e.Champ(11, 53); }

  void Donneur(const TEnregistrement& e) {
    TArticle& article = Dernier(e);
    article.Mouvement.Compte = SansSuite(e.Champ(11, 34));
    article.Mouvement.Donneur = e.Champ(48, 35).simplified();
    article.Zone += e.Champ(83, 43);
  }

  // Structured information tells no communication; of the whole name of the payer the movement has a part.
  void Information(const TEnregistrement& e) {
    TArticle& article = Dernier(e);
    libre_ = e.Caractere(40) != U'1';
    if (libre_)
      article.Libres += e.Champ(41, 73);
    else if (e.Champ(41, 3) == u"001")
      article.NomEntier = e.Champ(44, 70).simplified();
  }
  void InformationSuite(const TEnregistrement& e) { AjouterLibre(e, e.Champ(11, 105)); }
  void InformationFin(const TEnregistrement& e) { AjouterLibre(e, e.Champ(11, 90)); }
  void AjouterLibre(const TEnregistrement& e, const QString& texte) {
    TArticle& article = Dernier(e);
    if (libre_ && !article.Libres.isEmpty()) article.Libres.last() += texte;
  }

  void Fin(const TEnregistrement& e) { Clore(&e); }

  /// The details of a movement that the bank or the customer has totalled, when they are all there.
  void FinirMouvement() {
    if (articles_.empty()) return;
    const TArticle& total = articles_.front();
    mouvements_ = Additionner(mouvements_, total.Mouvement.Montant);
    Currency& sens = total.Mouvement.Montant < Currency() ? comptes_.Debits : comptes_.Credits;
    sens = Additionner(sens, total.Mouvement.Montant.Absolu());
    std::vector<const TArticle*> details;
    Currency somme;
    for (std::size_t i = 1; i < articles_.size(); ++i) {
      if (articles_[i].Type == U'8' || articles_[i].Type == U'9') continue;
      details.push_back(&articles_[i]);
      somme = Additionner(somme, articles_[i].Mouvement.Montant);
    }
    const bool totalise = total.Type == U'1' || total.Type == U'2';
    if (!totalise || details.empty() || somme != total.Mouvement.Montant) details = {&total};
    for (const TArticle* article : details) Rendre(*article);
    articles_.clear();
  }

  void Rendre(const TArticle& article) {
    TMouvement mouvement = article.Mouvement;
    if (article.NomEntier.startsWith(mouvement.Donneur)) mouvement.Donneur = article.NomEntier;
    mouvement.Communication = Communication(article);
    releve_.Mouvements.push_back(std::move(mouvement));
  }

  void FinirReleve() {
    FinirMouvement();
    if (!entete_) return;
    if (const QString preuve = PreuveDesSoldes(*entete_, mouvements_); !preuve.isEmpty())
      releve_.Preuves += preuve;
    releve_.Entetes.push_back(*std::exchange(entete_, std::nullopt));
    mouvements_ = {};
  }

  /// The end of a file; null when its record 9 does not come.
  void Clore(const TEnregistrement* fin) {
    FinirReleve();
    ouvert_ = false;
    if (fin == nullptr) {
      releve_.Preuves += u"L'enregistrement 9 manque : le fichier n'est pas complet."_s;
      return;
    }
    const auto prouver = [&](const QString& quoi, std::int64_t lu, std::size_t place, std::size_t longueur,
                             QString (*montrer)(std::int64_t)) {
      const QString champ = fin->Champ(place, longueur);
      const bool chiffres = EstChiffres(champ);
      if (chiffres && champ.toLongLong() == lu) return;
      releve_.Preuves += u"%1 : %2, et l'enregistrement 9 annonce %3."_s.arg(
          quoi, montrer(lu), chiffres ? montrer(champ.toLongLong()) : u"« %1 »"_s.arg(champ.trimmed()));
    };
    const auto montant = [](std::int64_t milliemes) { return FormatMontant(Currency::Brut(milliemes * 10)); };
    prouver(u"Nombre d'enregistrements"_s, comptes_.Enregistrements, 17, 6,
            [](std::int64_t nombre) { return QString::number(nombre); });
    prouver(u"Somme des débits"_s, comptes_.Debits.EnBrut() / 10, 23, 15, montant);
    prouver(u"Somme des crédits"_s, comptes_.Credits.EnBrut() / 10, 38, 15, montant);
  }

  TReleveBancaire releve_;
  bool ouvert_ = false, libre_ = false;
  TComptes comptes_;
  std::optional<TEnteteReleve> entete_;  // of the statement in hand
  Currency mouvements_;                  // their sum in it
  std::vector<TArticle> articles_;       // the movement in hand: its total, then its details
};

}  // namespace

bool EstCoda(const QByteArray& octets) {
  QByteArray tete = octets.first(std::min<qsizetype>(octets.size(), 400));
  while (!tete.isEmpty() && static_cast<uchar>(tete.back()) >= 0x80) tete.chop(1);  // no half of a letter
  const QString debut = TexteDepuisOctets(tete).trimmed();
  return debut.startsWith(u"0000") && !debut.left(kDebutEntete).contains(u';');
}

TReleveBancaire LireCoda(const QByteArray& octets) { return TLecteurCoda().Lire(LignesDeTexte(octets)); }
