#include "report/template/verification.h"

#include <QHash>
#include <algorithm>

#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kMotsDeListe = "maitre, entete, pied, colonnes, enteteColonnes, resume";

/// An option that would be passed over in silence on a band of another kind.
struct TReserve {
  const char* Attribut;
  bool (*Posee)(const TBandeModele& bande);
  std::vector<TSorteBande> Sortes;
  const char* Mots;
};

const std::vector<TReserve>& Reserves() {
  using enum TSorteBande;
  static const std::vector<TReserve> reserves{
      {"jeu", [](const TBandeModele& b) { return !b.Jeu.isEmpty(); }, {Entete, Pied}, "entete, pied"},
      {"imprimerSiVide",
       [](const TBandeModele& b) { return b.ImprimerSiVide; },
       {Maitre, Detail},
       "maitre, detail"},
      {"dernierePage", [](const TBandeModele& b) { return b.DernierePage; }, {PiedPage}, "piedPage"},
      {"premierePageSans",
       [](const TBandeModele& b) { return b.PremierePageSans; },
       {EntetePage},
       "entetePage"},
      {"colonnes",
       [](const TBandeModele& b) { return b.Colonnes > 1; },
       {Maitre, Detail, SousDetail},
       "maitre, detail, sousDetail"},
      {"colonnesMin",
       [](const TBandeModele& b) { return b.ColonnesMin != TBandeModele().ColonnesMin; },
       {Maitre, Entete, Pied, Colonnes, EnteteColonnes, Resume},
       kMotsDeListe},
      {"colonnesMax",
       [](const TBandeModele& b) { return b.ColonnesMax != TBandeModele().ColonnesMax; },
       {Maitre, Entete, Pied, Colonnes, EnteteColonnes, Resume},
       kMotsDeListe},
      // The place of a footer is kept before its texts are known.
      {"etirable",
       [](const TBandeModele& b) { return b.Etirable; },
       {EntetePage, Maitre, Detail, SousDetail, Entete, Pied, Colonnes, EnteteColonnes, Resume},
       "toute sorte de bande sauf piedPage"}};
  return reserves;
}

bool EstDeDonnees(TSorteBande sorte) {
  return sorte == TSorteBande::Maitre || sorte == TSorteBande::Detail || sorte == TSorteBande::SousDetail;
}

class TVerification {
 public:
  explicit TVerification(const TModele& modele) : modele_(modele) {}

  void Tout() {
    if (modele_.Pages.empty()) throw Exception(u"%1 : le modèle n'a pas de page."_s.arg(modele_.Fichier));
    for (const TPageModele& page : modele_.Pages)
      for (const TBandeModele& bande : page.Bandes) Bande(page, bande);
    if (modele_.Script) References();
  }

 private:
  /// Of a band, an object or a reference of the script.
  template <class T>
  [[noreturn]] static void Refuser(const T& chose, const QString& raison) {
    throw Exception(u"%1, ligne %2 : %3."_s.arg(chose.Fichier).arg(chose.Ligne).arg(raison));
  }

  void Bande(const TPageModele& page, const TBandeModele& bande) {
    Nom(bande, {});
    Procedure(bande);
    for (const TReserve& reserve : Reserves())
      if (reserve.Posee(bande) && std::ranges::count(reserve.Sortes, bande.Sorte) == 0)
        Refuser(bande,
                u"« %1 » est pour : %2"_s.arg(QLatin1String(reserve.Attribut), QLatin1String(reserve.Mots)));
    Jeu(page, bande);
    for (const TObjetModele& objet : bande.Objets) {
      Nom(objet, objet.Sorte);
      Procedure(objet);
      SousRapport(bande, objet);
    }
  }

  template <class T>
  void Nom(const T& chose, std::optional<TSorteObjet> sorte) {
    if (chose.Nom.isEmpty()) return;
    if (noms_.contains(chose.Nom.toLower()))
      Refuser(chose, u"deux objets portent le nom « %1 »"_s.arg(chose.Nom));
    noms_.insert(chose.Nom.toLower(), sorte);
  }

  template <class T>
  void Procedure(const T& chose) const {
    const QString& nom = chose.AvantImpression;
    if (!nom.isEmpty() && !(modele_.Script && modele_.Script->ConnaitProcedure(nom)))
      Refuser(chose, u"la procédure « %1 » n'existe pas dans le script"_s.arg(nom));
  }

  /// A head without rows of its own is printed once; a foot would never be.
  void Jeu(const TPageModele& page, const TBandeModele& bande) const {
    if (bande.Jeu.isEmpty()) {
      if (bande.Sorte == TSorteBande::Pied)
        Refuser(bande, u"le pied « %1 » n'a pas de « jeu »"_s.arg(bande.Nom));
      return;
    }
    const bool connu = std::ranges::any_of(page.Bandes, [&](const TBandeModele& autre) {
      return EstDeDonnees(autre.Sorte) && autre.Nom.compare(bande.Jeu, Qt::CaseInsensitive) == 0;
    });
    if (!connu)
      Refuser(bande, u"la page n'a pas de bande maitre, detail ou sousDetail « %1 » (jeu de « %2 »)"_s.arg(
                         bande.Jeu, bande.Nom));
  }

  /// Its bands follow the one that names it, which those of the page's edge and of columns cannot have.
  void SousRapport(const TBandeModele& bande, const TObjetModele& objet) const {
    using enum TSorteBande;
    if (objet.Sorte != TSorteObjet::SousRapport) return;
    for (const TSorteBande sorte : {EntetePage, PiedPage, Colonnes, EnteteColonnes})
      if (bande.Sorte == sorte)
        Refuser(objet, u"la bande « %1 » ne peut pas avoir de sous-rapport"_s.arg(bande.Nom));
    const QString nom = objet.Texte.trimmed();
    const bool connu = std::ranges::any_of(
        modele_.Pages, [&](const TPageModele& page) { return page.SousRapport && page.Nom == nom; });
    if (!connu) Refuser(objet, u"aucune page n'est le sous-rapport « %1 »"_s.arg(nom));
  }

  void References() const {
    for (const TScript::TReference& reference : modele_.Script->References()) {
      const auto sorte = noms_.constFind(reference.Objet.toLower());
      if (sorte == noms_.constEnd())
        Refuser(reference, u"le script nomme « %1 », qui n'existe pas"_s.arg(reference.Objet));
      if (!APropriete(*sorte, reference.Propriete))
        Refuser(reference, u"« %1 » n'a pas la propriété que pose le script"_s.arg(reference.Objet));
    }
  }

  const TModele& modele_;
  QHash<QString, std::optional<TSorteObjet>> noms_;  ///< none for a band
};

}  // namespace

bool APropriete(std::optional<TSorteObjet> sorte, TPropriete propriete) {
  const bool texte = sorte == TSorteObjet::Texte || sorte == TSorteObjet::TexteRiche;
  const bool code = sorte == TSorteObjet::CodeBarres;
  switch (propriete) {
    case TPropriete::Visible:
    case TPropriete::Width:
    case TPropriete::Height:
      return true;
    case TPropriete::Top:
      return sorte.has_value();
    case TPropriete::Color:
      return !sorte || texte || sorte == TSorteObjet::Cadre;
    case TPropriete::Text:
      return texte || code || sorte == TSorteObjet::Qr;
    case TPropriete::BarType:
      return code;
  }
  return false;
}

void VerifierModele(const TModele& modele) { TVerification(modele).Tout(); }
