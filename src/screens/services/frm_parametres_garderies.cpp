#include "screens/services/frm_parametres_garderies.h"

namespace {

TTextesListe TextesTarifs() {
  return {.Titre = u"Horaires et tarifs des services offerts par l'école"_s,
          .Liste = u"Tarifs"_s,
          .Lecture = u"Tarif"_s,
          .Nouveau = u"Nouveau tarif"_s,
          .Modification = u"Modification du tarif"_s,
          .Enregistre = u"Tarif enregistré"_s,
          .Supprime = u"Tarif supprimé"_s,
          .Retabli = u"Tarif rétabli"_s,
          .Question =
              u"Voulez-vous supprimer ce tarif ?\r\nATTENTION : Les montants dûs par les parents "
              "concernant ce tarif seront supprimés chez tous les élèves."_s,
          .Vide = u"Aucun tarif."_s,
          .VideSuite = u"Sans tarif, tous les services coûtent 0,00 €."_s};
}

using T = TTarifGarderie;

/// "lu, ma, je, ve"; one day, and every day, stand as they are.
QString JoursEnCourt(const QString& jours) {
  QStringList courts = jours.split(u", "_s);
  if (courts.size() == 1) return jours;
  for (QString& jour : courts) jour.truncate(2);
  return courts.join(u", "_s);
}

/// "par période", without what it is called elsewhere.
QString FacturationEnCourt(const QString& texte) { return texte.section(u" ("_s, 0, 0); }

std::vector<TColonneDe<T>> Colonnes() {
  return {{{u"Type de service"_s, 367}, [](const T& t) { return Texte(t.TypeFamille); }},
          {{.Titre = u"Jours"_s, .Largeur = 256, .Abreger = JoursEnCourt},
           [](const T& t) { return Texte(t.TypeJour); }},
          {{u"Hr. début"_s, 92, TGenre::HeureH}, [](const T& t) { return t.HeureDebutScan; }},
          {{u"Hr. de fin"_s, 92, TGenre::HeureH}, [](const T& t) { return t.HeureFinScan; }},
          {{u"Coût"_s, 92, TGenre::Prix}, [](const T& t) { return t.Cout; }},
          {{.Titre = u"Facturation"_s, .Largeur = 184, .Abreger = FacturationEnCourt},
           [](const T& t) { return TexteFacturation(t.TypeForfait); }}};
}

// The index of a list is the number stored.
TTableChamps<T> Champs() {
  using enum TGenreChamp;
  return {
      {{.Nom = u"cmbTypeFamille"_s,
        .Libelle = u"Type de service:"_s,
        .Genre = Choix,
        .Choix = TextesTypeFamille},
       Membre(&T::TypeFamille)},
      {{.Nom = u"cmbTypeJour"_s, .Libelle = u"Jours concernés:"_s, .Genre = Choix, .Choix = TextesTypeJour},
       Membre(&T::TypeJour)},
      {{.Nom = u"edHeureDebut"_s, .Libelle = u"Heures effectives:"_s, .Genre = Heure, .Obligatoire = true},
       Membre(&T::HeureDebutScan)},
      {{.Nom = u"edHeureFin"_s,
        .Libelle = u"à"_s,
        .Genre = Heure,
        .Nomme = u"Heure de fin"_s,
        .Obligatoire = true,
        .Suite = true},
       Membre(&T::HeureFinScan)},
      {{.Nom = u"cmbTypeScan"_s,
        .Libelle = u"Type de scanning:"_s,
        .Genre = Choix,
        .Colonne = 1,
        .Choix = TextesTypeScan},
       Membre(&T::TypeScan)},
      {{.Nom = u"edCout"_s,
        .Libelle = u"Coût du service:"_s,
        .Genre = Montant,
        .Obligatoire = true,
        .Unite = u"euros  par"_s,
        .Colonne = 1},
       Membre(&T::Cout)},
      {{.Nom = u"cmbTypeForfait"_s,
        .Genre = Choix,
        .Nomme = u"Unité du coût"_s,
        .Suite = true,
        .Colonne = 1,
        .Choix = TextesUnite},
       Membre(&T::TypeForfait)},
      {{.Nom = u"edCout2eEnfant"_s,
        .Libelle = u"Coût du 2e enfant:"_s,
        .Genre = Montant,
        .Obligatoire = true,
        .Unite = u"euros"_s,
        .Colonne = 1},
       Membre(&T::Cout2eEnfant)},
  };
}

}  // namespace

TFrmParametresGarderies::TFrmParametresGarderies(TContexteEcran& contexte)
    : TFrmListeDe(contexte, TextesTarifs(), Colonnes(), ::Champs()) {}

TCollection<T>& TFrmParametresGarderies::Collection() const { return *Globals.TarifsGarderies; }

QString TFrmParametresGarderies::Avis() const {
  if (Courant() == nullptr) return {};
  const T& tarif = *Courant();
  QStringList manques;
  if (tarif.TypeFamille == TTypeFamille::Indefini) manques += u"de type de service"_s;
  if (tarif.TypeJour == TTypeJour::Aucun) manques += u"de jours"_s;
  if (tarif.TypeForfait == TTypeForfait::Aucun) manques += u"d'unité après le coût"_s;
  return manques.isEmpty() ? QString() : QString(u"il ne coûtera rien, faute " % manques.join(u", "));
}
