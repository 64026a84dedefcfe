#include "screens/documents/imprimeur.h"

#include "documents/fiche_fiscale.h"
#include "screens/documents/frm_manques.h"
#include "screens/payments/frm_date_paiement.h"

void TImprimeur::Proposer(std::vector<TTitreOffert> titres, int moisEcran) {
  titres_ = std::move(titres);
  std::vector<TTitreAssistant> offerts;
  for (const TTitreOffert& titre : titres_) offerts.push_back(Offert(*titre.Montre, *titre.Fait));
  TDemandeAssistant demande = TDemandeAssistant::De(std::move(offerts));
  demande.PageQui = std::ranges::any_of(titres_, [](const auto& titre) { return titre.Montre->AvecEleves; });
  demande.MoisEcran = moisEcran;
  auto choix = contexte_.Assistant->Demander(demande);
  if (choix) Imprimer(std::move(*choix));
}

TTitreAssistant TImprimeur::Offert(const TTitreDocument& montre, const TTitreDocument& fait) {
  TTitreAssistant titre{QString::fromUtf16(montre.Titre), montre.AvecPeriode, Empechement(fait, etiquettes_)};
  if (!montre.ParAnneeRevenus) return titre;
  const auto contexte = [this] { return ContexteDesGlobals(contexte_.Controleur.Horloge()); };
  titre.Annees = AnneesRevenus(contexte());
  titre.Annee = AnneeRevenusUsuelle(contexte());
  titre.Portee = [contexte](const TChoixDocument& choix) { return PorteeFiches(contexte(), choix); };
  return titre;
}

void TImprimeur::Imprimer(TChoixDocument choix) {
  if (choix.Indice < 0 || choix.Indice >= std::ssize(titres_)) return;
  const TTitreDocument& titre = *titres_[static_cast<std::size_t>(choix.Indice)].Fait;
  if (DemandeDatePaiement(titre, *Globals.Parametres)) {
    TFrmDatePaiement date(contexte_);
    if (contexte_.Modale.MontrerModal(date) == TResultatModal::Valide)
      choix.DatePaiement = date.dtDatePaiement();
  }
  choix.Jour = jourRepas_ != 0.0 ? jourRepas_ : contexte_.Controleur.Horloge().Aujourdhui();
  choix.NouveauxRepas = nouveauxRepas_;
  Faire([&](const TContexteDocument& contexte) { return FaireDocument(contexte, titre, choix); });
}

void TImprimeur::Faire(const std::function<TResultat(const TContexteDocument&)>& construire) {
  TResultat resultat;
  {
    const TAttente attente(contexte_.Dialogues());
    TContexteDocument contexte = ContexteDesGlobals(contexte_.Controleur.Horloge());
    contexte.Etiquettes = &etiquettes_;
    resultat = construire(contexte);
  }
  Montrer(std::move(resultat));
}

void TImprimeur::Montrer(TResultat resultat) {
  for (const QString& message : resultat.Messages)
    resultat.Echec ? contexte_.Dialogues().Message(message) : contexte_.Dialogues().Information(message);
  if (!PasseManques(resultat)) return;
  for (TRapport& rapport : resultat.Rapports)
    if (contexte_.Apercu.Afficher(rapport) && SurSortie) SurSortie(rapport);
}

bool TImprimeur::PasseManques(const TResultat& resultat) {
  if (resultat.Manques.empty()) return true;
  TFrmManques manques(resultat, SurAllerAuChamp != nullptr);
  const bool imprimer = contexte_.Modale.MontrerModal(manques) == TResultatModal::Valide;
  const TManque* manque = manques.Choisi();
  if (manque != nullptr && SurAllerAuChamp) SurAllerAuChamp(*manque);
  return imprimer && manque == nullptr;
}
