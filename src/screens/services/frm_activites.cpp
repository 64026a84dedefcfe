#include "screens/services/frm_activites.h"

namespace {

using T = TActivite;

constexpr int kLibelleMaximum = 250;

TTextesListe Textes() {
  return {.Titre = u"Horaires des activités extra-scolaires"_s,
          .Liste = u"Activités"_s,
          .Lecture = u"Activité"_s,
          .Nouveau = u"Nouvelle activité"_s,
          .Modification = u"Modification de l'activité"_s,
          .Enregistre = u"Activité enregistrée"_s,
          .Supprime = u"Activité supprimée"_s,
          .Retabli = u"Activité rétablie"_s,
          .Question =
              u"Voulez-vous supprimer cette activité ?\r\nATTENTION : Les montants des garderies seront "
              "recalculés chez tous les élèves."_s,
          .Vide = u"Aucune activité."_s,
          .VideSuite = u"Le temps passé à une activité n'est pas compté en garderie."_s};
}

std::vector<TColonneDe<T>> Colonnes() {
  return {{{u"Libellé"_s, 420}, [](const T& a) { return a.Libelle; }},
          {{u"Date de début"_s, 130, TGenre::Date}, [](const T& a) { return a.DateDebut; }},
          {{u"Date de fin"_s, 130, TGenre::Date}, [](const T& a) { return a.DateFin; }},
          {{u"Hr. début"_s, 100, TGenre::HeureH}, [](const T& a) { return a.HeureDebut; }},
          {{u"Hr. de fin"_s, 100, TGenre::HeureH}, [](const T& a) { return a.HeureFin; }}};
}

// The end may be before the start.
TTableChamps<T> ChampsActivite() {
  using enum TGenreChamp;
  return {
      {{.Nom = u"edLibelle"_s, .Libelle = u"Libellé de l'activité:"_s, .Longueur = kLibelleMaximum},
       Membre(&T::Libelle)},
      {{.Nom = u"edDateDebut"_s, .Libelle = u"Date de période :"_s, .Genre = Date, .Obligatoire = true},
       Membre(&T::DateDebut)},
      {{.Nom = u"edDateFin"_s,
        .Libelle = u"au"_s,
        .Genre = Date,
        .Nomme = u"Date de fin"_s,
        .Obligatoire = true,
        .Suite = true},
       Membre(&T::DateFin)},
      {{.Nom = u"edHeureDebut"_s, .Libelle = u"Heures effectives:"_s, .Genre = Heure, .Obligatoire = true},
       Membre(&T::HeureDebut)},
      {{.Nom = u"edHeureFin"_s,
        .Libelle = u"à"_s,
        .Genre = Heure,
        .Nomme = u"Heure de fin"_s,
        .Obligatoire = true,
        .Suite = true},
       Membre(&T::HeureFin)},
  };
}

}  // namespace

TFrmActivites::TFrmActivites(TContexteEcran& contexte)
    : TFrmListeDe(contexte, ::Textes(), Colonnes(), ChampsActivite()) {}

TCollection<T>& TFrmActivites::Collection() const { return *Globals.Activites; }

void TFrmActivites::MontrerNouveau() {
  TFrmListeDe::MontrerNouveau();
  const TDateTime aujourdhui = Contexte().Controleur.Horloge().Aujourdhui();
  for (const QString& nom : {u"edDateDebut"_s, u"edDateFin"_s})
    Champs().Proposer(Champs().Indice(nom), aujourdhui);
}

TCellules TFrmActivites::Oter() {
  const int cle = Courant()->Id;
  TCellules valeurs = TFrmListeDe::Oter();
  supprimee_ = cle;
  return valeurs;
}

void TFrmActivites::Remettre(const TCellules& valeurs) {
  TFrmListeDe::Remettre(valeurs);
  Globals.ActivitesEleves->Reprendre(supprimee_, Courant()->Id);
}
