#include "screens/meals/frm_cuisine.h"

#include "core/accord.h"
#include "core/formats.h"
#include "pupils/eleves.h"

using namespace Qt::StringLiterals;

TFrmCuisine::TFrmCuisine(TContexteEcran& contexte, const TGenerationRepas& generation)
    : contexte_(contexte),
      generation_(generation),
      imprimeur_(contexte, TitresOfferts(TListeTitres::Cuisine)) {
  imprimeur_.SurSortie = [this](const TRapport& rapport) {
    if (rapport.Modele() == "FichePreparation"_L1) NoterImpression();
  };
}

void TFrmCuisine::FormShow() {
  date_.Definir(contexte_.Controleur.Horloge().Aujourdhui());
  imprimee_ = TFicheImprimee::Lire(contexte_.Controleur.Reglages(), generation_);
  AdvGlowButton1Click();
}

void TFrmCuisine::AdvGlowButton1Click() {
  Globals.Eleves->LibererCommandes();
  Recapituler();
  titre_ = u"Récapitulatif du " % LocaleEcole().toString(DateVersQt(date_.Jour()), u"dddd dd/MM"_s);
  Annoncer();
}

void TFrmCuisine::ChangerJour(void (TJourEcran::*pas)()) {
  (date_.*pas)();
  Recapituler();
  titre_ = u"Préparations du " % date_.Titre();
  Annoncer();
}

void TFrmCuisine::Recapituler() {
  jour_ = JourDeCuisine(*Globals.Eleves, date_.Jour());
  contenu_ = ContenuDeFiche(jour_, generation_);
  Arbre.Vider();
  for (const TClasseDuJour& classe : jour_.Classes) {
    const auto lignes = LignesDeClasse(classe, generation_);
    if (lignes.empty()) continue;
    TNoeud& noeud = Arbre.Ajouter(nullptr, classe.Classe->Libelle(), {});
    for (const TLigneCuisine& ligne : lignes) Arbre.Ajouter(&noeud, ligne.Texte(), {});
  }
  Arbre.Annoncer();
}

QString TFrmCuisine::NoteIncompletes() const {
  if (!generation_.AvecVerrou || jour_.Incompletes == 0) return {};
  return Compter(jour_.Incompletes,
                 u"commande incomplète : elle est dans les totaux et dans aucune variété."_s,
                 u"commandes incomplètes : elles sont dans les totaux et dans aucune variété."_s);
}

QString TFrmCuisine::NoteChangements() const {
  if (imprimee_.Jour != jour_.Jour) return {};
  const QStringList changements = imprimee_.Changements(contenu_);
  if (changements.isEmpty()) return {};
  return u"Depuis l'impression de la fiche, le %1 à %2 : %3"_s.arg(
      FormatDate(imprimee_.Moment), FormatHeure(imprimee_.Moment), changements.join(u"  ·  "));
}

bool TFrmCuisine::RecevoirMessage(const TMessage& message) {
  imprimeur_.DefinirJourRepas(jour_.Jour, &generation_ == &GenerationRepas(true));
  aImprimer_ = {jour_.Jour, 0.0, contenu_};
  if (message.Code == TCodeMessage::Imprimer) {
    imprimeur_.Proposer(TitresOfferts(TListeTitres::Cuisine));
    return true;
  }
  if (message.Code != TCodeMessage::AssistantConfirme) return false;
  if (const auto* choix = message.En<TChoixDocument>()) imprimeur_.Imprimer(*choix);
  return true;
}

void TFrmCuisine::NoterImpression() {
  imprimee_ = aImprimer_;
  imprimee_.Moment = contexte_.Controleur.Horloge().Maintenant();
  imprimee_.Memoriser(contexte_.Controleur.Reglages(), generation_);
  Annoncer();
}
