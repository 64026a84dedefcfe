#include "screens/meals/frm_transfert_repas.h"

#include "core/accord.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

TFrmTransfertRepas::TFrmTransfertRepas(TContexteEcran& contexte)
    : Anomalies({{u"Nom"_s, 200},
                 {u"Prénom"_s, 140},
                 {u"Date"_s, 180, TGenre::DateLongue},
                 {u"Type"_s, 80},
                 {u"Raison"_s, 320}}),
      contexte_(contexte) {}

std::vector<TCompteurRepas> TFrmTransfertRepas::Compteurs() const {
  return {{u"Nombre de repas relevés :"_s, bilan_.Lignes},
          {u"Nombre d'anomalies détectées:"_s, bilan_.Anomalies}};
}

void TFrmTransfertRepas::Dire(TNiveauEtat niveau, const QString& texte) {
  niveau_ = niveau;
  etat_ = texte;
  contexte_.Principal.Etat(niveau, texte);
  Annoncer();
}

void TFrmTransfertRepas::btnRecommencerClick() {
  if (enCours_) return;
  struct TEnCours {
    bool& Drapeau;
    explicit TEnCours(bool& drapeau) : Drapeau(drapeau) { Drapeau = true; }
    ~TEnCours() { Drapeau = false; }
  };
  analyse_ = false;
  bilan_ = {};
  Anomalies.Vider();
  TTransfertRepas transfert(contexte_.Controleur);
  transfert.SurAnalyse = [&](const TBilanTransfert& bilan) { Montrer(transfert, bilan); };
  try {
    const TEnCours enCours(enCours_);
    Dire(TNiveauEtat::Neutre, u"Synchronisation des élèves:"_s);
    bilan_ = transfert.Executer();
  } catch (const Exception& e) {
    Dire(TNiveauEtat::Erreur,
         u"Le transfert s'est arrêté, les repas sont toujours sur la tablette. "_s + e.Message);
    contexte_.Dialogues().Message(e.Message);
    return;
  }
  Conclure(bilan_);
}

void TFrmTransfertRepas::Montrer(const TTransfertRepas& transfert, const TBilanTransfert& bilan) {
  bilan_ = bilan;
  analyse_ = true;
  for (const TAnomalie& anomalie : transfert.Anomalies()) {
    TCellules cellules = LigneAnomalie(anomalie);
    cellules.resize(4);
    cellules.push_back(RaisonAnomalie(anomalie));
    Anomalies.Ajouter(std::move(cellules));
  }
  Annoncer();
}

void TFrmTransfertRepas::Conclure(const TBilanTransfert& bilan) {
  if (!bilan.Connecte)
    return Dire(TNiveauEtat::Alerte, u"Le serveur n'a pas été atteint : la tablette continue hors ligne."_s);
  if (!bilan.HorsLigne)
    return Dire(TNiveauEtat::Alerte,
                u"Le transfert est arrêté : la tablette reste connectée, et les repas sont gardés."_s);
  if (!bilan.Importe) return Dire(TNiveauEtat::Succes, u"Les élèves sont à jour."_s);
  QString texte =
      Compter(bilan.Repas, u"repas transféré"_s, u"repas transférés"_s, u"Aucun repas transféré"_s) %
      u", les élèves sont à jour.";
  if (bilan.DejaNotes > 0) texte += u" Déjà notés : %1."_s.arg(bilan.DejaNotes);
  if (bilan.Couverts.isEmpty()) return Dire(TNiveauEtat::Succes, texte);
  Dire(TNiveauEtat::Alerte, texte % u" Pas enregistrés : %1."_s.arg(bilan.Couverts.size()));
  contexte_.Dialogues().Message(
      u"Ces repas ne sont pas enregistrés, parce qu'un autre relevé de ce jour-là compte à leur place :\n" %
      bilan.Couverts.join(u'\n'));
}
