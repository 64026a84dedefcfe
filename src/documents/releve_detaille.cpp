#include "documents/releve_detaille.h"

#include "attendance/presences.h"
#include "core/formats.h"
#include "core/parametres.h"
#include "documents/lettres.h"
#include "documents/sections.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

namespace {

/// A section of the statement, and how the hours of its lines are found.
struct TRubrique {
  TService Service;
  const char16_t* Titre;
  TTypeFamille Famille;
  enum class THeures { SortieParDefaut, EntreeParDefaut, Sans } Heures;
};

using enum TRubrique::THeures;

constexpr TRubrique kRubriques[] = {
    {TService::Matin, u"Garderie du matin", TTypeFamille::Matin, SortieParDefaut},
    {TService::Midi, u"Garderie du midi", TTypeFamille::Midi, SortieParDefaut},
    {TService::Soir, u"Garderie du soir", TTypeFamille::Soir, EntreeParDefaut},
    {TService::Mercredi, u"Garderie du mercredi", TTypeFamille::Mercredi, EntreeParDefaut},
    {TService::Etude, u"Etudes", TTypeFamille::Etude, Sans},
    {TService::Repas, u"Repas", TTypeFamille::Repas, Sans},
    {TService::Soupe, u"Soupe", TTypeFamille::Soupe, Sans},
};

void EcrireHeures(const TPresences& presences, const TRubrique& rubrique, const TPresence& presence,
                  TValeurs& valeurs) {
  TDateTime entree = presence.HeureEntree;
  TDateTime sortie = presence.HeureSortie;
  if (rubrique.Heures == SortieParDefaut && sortie == 0)
    sortie = presences.FinServiceMatinMidi(rubrique.Famille);
  if (rubrique.Heures == EntreeParDefaut && entree == 0)
    entree = presences.DebutServiceSoirEtude(rubrique.Famille);
  valeurs.Ecrire(u"HeureDebut", FormatHeureCourte(entree));
  valeurs.Ecrire(u"HeureFin", FormatHeureCourte(sortie));
}

TNoeudRapport NoeudRubrique(const TEleve& eleve, const TRubrique& rubrique, const TPeriode& periode) {
  const QString titre = QString::fromUtf16(rubrique.Titre);
  TNoeudRapport section(titre);
  section.Valeurs.Ecrire(u"TypeFrais", titre);
  if (rubrique.Heures == Sans) section.Valeurs.Ecrire(u"HideHeure", u"1"_s);
  TLignesService lignes;
  eleve.CoutService(rubrique.Service, periode, lignes);
  for (const TLigneService& ligne : lignes) {
    const QString jour = FormatJour(ligne.Presence->DateReleve);
    TValeurs& valeurs = section.Ajouter(jour).Valeurs;
    valeurs.Ecrire(u"JourService", jour);
    if (rubrique.Heures != Sans) EcrireHeures(*eleve.Eleves->Presences, rubrique, *ligne.Presence, valeurs);
    valeurs.Ecrire(u"Montant", FormatDeuxDecimales(ligne.Montant));
  }
  return section;
}

/// Without anything to show, the message is left instead, if any.
TResultat Relever(const TContexteDocument& contexte, const TElevesChoisis& eleves,
                  const TPeriodeDocument& periode, const QString& siVide) {
  const auto ecrire = [&](const TEleve& eleve, IDialogues&) {
    TNoeudRapport noeud = NoeudEleve(eleve);
    for (const TRubrique& rubrique : kRubriques)
      if (!EstAccueil(rubrique.Service) || !eleve.Flg3eEnfant)
        noeud.Enfants.push_back(NoeudRubrique(eleve, rubrique, periode.Jours()));
    return noeud;
  };
  const QString titre = u"Détails des services du " % FormatDateLongue(periode.DateDebut) % u" au " %
                        FormatDateLongue(periode.DateFin);
  const QString modele = LogoAGauche(contexte.Parametres) ? u"DetailServiceVesper"_s : u"DetailService"_s;
  return FaireLettres(LettreEcole(u"Relevé détaillé des services"_s, modele, contexte.Parametres, titre),
                      eleves, ecrire, siVide);
}

}  // namespace

TResultat ReleveDetaille(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  if (demande.Eleves.empty()) {
    TResultat resultat;
    resultat.Messages += u"Veuillez sélectionner des élèves dans la liste."_s;
    return resultat;
  }
  return Relever(contexte, SansRadies(demande.Eleves), demande.Periode, u"Aucun relevé à imprimer."_s);
}

TResultat DetailApresFacture(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  TElevesChoisis detailles;
  for (TEleve* eleve : demande.Eleves)
    if (!eleve->FlgRadie && eleve->FlgFactureDetail) detailles.push_back(eleve);
  return Relever(contexte, detailles, demande.Periode, {});
}
