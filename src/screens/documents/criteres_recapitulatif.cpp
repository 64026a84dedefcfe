#include "screens/documents/criteres_recapitulatif.h"

#include "application/globals.h"
#include "core/calendrier_scolaire.h"
#include "core/mois.h"
#include "screens/documents/frm_recapitulatif.h"

using namespace Qt::StringLiterals;

namespace {

using T = TCriteresRecapitulatif;

QStringList TextesGroupes() {
  std::vector<TLibelleGroupe> libelles;
  Globals.GroupesFrais->LibellesGroupes(libelles);
  QStringList textes;
  for (const TLibelleGroupe& libelle : libelles) textes += libelle.Libelle;
  return textes;
}

void EcrireMois(T& criteres, const TValeurVue& valeur) {
  criteres.IndiceMois = ValeurEn<int>(valeur);
  const int indice = criteres.IndiceMois;
  const bool choisi = indice >= 0 && indice < std::ssize(kMoisScolaires);
  criteres.Impayes.Mois = choisi ? kMoisScolaires[static_cast<std::size_t>(indice)] : 0;
}

/// A value that lies a level below.
template <class S, class M>
TAcces<T> DansLa(S T::*partie, M S::*membre) {
  return {[=](const T& criteres) { return ValeurDe(criteres.*partie.*membre); },
          [=](T& criteres, const TValeurVue& valeur) { criteres.*partie.*membre = ValeurEn<M>(valeur); }};
}

TChamp ChampCoche(const QString& nom, const QString& libelle) {
  return {.Nom = nom, .Libelle = libelle, .Genre = TGenreChamp::Coche};
}

TChamp ChampDate(const QString& nom, const QString& libelle) {
  return {.Nom = nom, .Libelle = libelle, .Genre = TGenreChamp::Date, .Obligatoire = true};
}

}  // namespace

TTableChamps<T> ChampsRecapitulatif() {
  using enum TGenreChamp;
  return {
      {ChampCoche(u"cbFrais"_s, u"Frais"_s), DansLa(&T::Impayes, &TCriteresImpayes::Frais)},
      {ChampCoche(u"cbServices"_s, u"Services"_s), DansLa(&T::Impayes, &TCriteresImpayes::Services)},
      {{.Nom = u"rbPeriode"_s, .Libelle = u"Période"_s, .Genre = Choix},
       DansLa(&T::Impayes, &TCriteresImpayes::Etendue)},
      {{.Nom = u"cmbMois"_s, .Libelle = u"Mois"_s, .Genre = Choix, .Choix = NomsMoisScolaires},
       {[](const T& criteres) { return criteres.IndiceMois; }, EcrireMois}},
      {ChampCoche(u"cbFraisPositifs"_s, u"Frais"_s), Membre(&T::FraisPositifs)},
      {ChampCoche(u"cbServicesPositifs"_s, u"Services"_s), Membre(&T::ServicesPositifs)},
      {ChampDate(u"dtDebut"_s, u"Du"_s), DansLa(&T::Passages, &TPeriode::Premier)},
      {ChampDate(u"dtFin"_s, u"au"_s), DansLa(&T::Passages, &TPeriode::Dernier)},
      {{.Nom = u"cmbGroupePaiement"_s,
        .Libelle = u"Groupe paiement : "_s,
        .Genre = Choix,
        .Choix = TextesGroupes},
       Membre(&T::Groupe)},
      {ChampDate(u"dtContributionDate1"_s, u"Du"_s), DansLa(&T::Fiscale, &TPeriode::Premier)},
      {ChampDate(u"dtContributionDate2"_s, u"au"_s), DansLa(&T::Fiscale, &TPeriode::Dernier)},
  };
}
