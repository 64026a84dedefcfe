#include "documents/releve_frais.h"

#include "core/parametres.h"
#include "documents/lettres.h"
#include "documents/sections_frais.h"
#include "documents/services_factures.h"
#include "pupils/eleves.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

TResultat ReleveFraisEffectifs(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  contexte.Eleves.LireFrais(demande.Eleves);
  const TPeriodeDocument& periode = demande.Periode;
  const std::span<const TService> services(kServicesFactures);
  static_assert(kServicesFactures.back() == TService::Etude);
  const auto factures = contexte.Parametres.Regles().SansServices ? services.last(1) : services;
  const auto ecrire = [&](const TEleve& eleve, IDialogues&) {
    TSectionsFrais sections;
    for (const TFraisEleve* frais : FraisDuCatalogue(eleve, periode))
      if (!frais->FraisService() && !frais->Previsionnel()) sections.Ajouter(*frais);
    TSection rendus(u"Services"_s);
    AjouterServices(rendus, factures, u"Garderies du soir"_s, CoutsEntiers(eleve, periode.Jours()));
    TNoeudRapport noeud = NoeudEleve(eleve);
    sections.Terminer(noeud);
    noeud.Enfants.push_back(rendus.Terminer());
    return noeud;
  };
  TRapport lettre = LettreEcole(u"Relevé des frais effectifs"_s,
                                LogoAGauche(contexte.Parametres) ? u"ReleveVesper"_s : u"Releve"_s,
                                contexte.Parametres, periode.PeriodeTexte());
  lettre.AjouterVariable(u"TexteComplementaire",
                         contexte.Parametres.GetParametre(TParam::CommunicationFraisEffectifs));
  return FaireLettres(std::move(lettre), SansRadies(demande.Eleves), ecrire,
                      u"Aucun relevé n'est à établir pour la période choisie."_s);
}

TResultat ListePrevisionnelle(const TContexteDocument& contexte, const TDemandeDocument& demande) {
  contexte.Eleves.LireFrais(demande.Eleves);
  const auto ecrire = [&](const TEleve& eleve, IDialogues&) {
    TSectionsFrais sections;
    for (const TFraisEleve* frais : FraisDuCatalogue(eleve, demande.Periode))
      if (frais->Previsionnel()) sections.Ajouter(*frais);
    TNoeudRapport noeud = NoeudEleve(eleve);
    noeud.Valeurs.Ecrire(u"TotalGeneral", FormatDeuxDecimales(sections.Total()));
    sections.Terminer(noeud);
    return noeud;
  };
  return FaireLettres(LettreEcole(u"Récapitulatif des frais"_s, u"Previsionnel"_s, contexte.Parametres,
                                  demande.Periode.PeriodeTexte()),
                      SansRadies(demande.Eleves), ecrire,
                      u"Aucun frais prévisionnel n'est attribué pour la période choisie."_s);
}
