#include "screens/meals/frm_cuisine.h"

#include "core/formats.h"
#include "documents/cuisine.h"
#include "pupils/eleves.h"
#include "screens/documents/assistant.h"
#include "screens/documents/impression.h"

using namespace Qt::StringLiterals;

namespace {

enum TTitre { kFichePreparation, kDetailCommandes };

/// "+2 repas chauds"; "" for no difference.
QString Ecart(int avant, int apres, const QString& mot) {
  if (avant == apres) return {};
  return (apres > avant ? u"+"_s : QString()) % QString::number(apres - avant) % u' ' % mot;
}

}  // namespace

TFrmCuisine::TFrmCuisine(TContexteEcran& contexte, const TGenerationRepas& generation)
    : contexte_(contexte), generation_(generation) {}

void TFrmCuisine::FormShow() {
  date_.Definir(contexte_.Controleur.Horloge().Aujourdhui());
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
  return jour_.Incompletes == 1
             ? u"1 commande incomplète : elle est dans les totaux et dans aucune variété."_s
             : u"%1 commandes incomplètes : elles sont dans les totaux et dans aucune variété."_s.arg(
                   jour_.Incompletes);
}

QString TFrmCuisine::NoteChangements() const {
  if (imprime_.Jour != jour_.Jour) return {};
  QStringList ecarts{
      Ecart(imprime_.Repas, jour_.Repas, u"repas chauds"_s),
      Ecart(imprime_.Sandwichs, jour_.Sandwichs, QString::fromUtf16(generation_.LigneSandwich)),
      Ecart(imprime_.Dagos, jour_.Dagos, QString::fromUtf16(generation_.LigneDago))};
  ecarts.removeAll(QString());
  return ecarts.isEmpty() ? QString() : u"Depuis l'impression : " % ecarts.join(u", ");
}

bool TFrmCuisine::RecevoirMessage(const TMessage& message) {
  if (message.Code == TCodeMessage::Imprimer) {
    Proposer();
    return true;
  }
  if (message.Code != TCodeMessage::AssistantConfirme) return false;
  if (const auto* choix = message.En<TChoixDocument>()) Imprimer(choix->Indice);
  return true;
}

// The sheets take the whole school: the page of pupils has nothing to ask.
void TFrmCuisine::Proposer() {
  TDemandeAssistant demande =
      TDemandeAssistant::De({{u"Fiche de préparation"_s}, {u"Détail des commandes"_s}});
  demande.PageQui = false;
  if (const auto choix = contexte_.Assistant->Demander(demande)) Imprimer(choix->Indice);
}

void TFrmCuisine::Imprimer(int titre) {
  const TContexteDocument contexte = ContexteDesGlobals(contexte_.Controleur.Horloge());
  TImpression(contexte_, {})
      .Montrer(titre == kFichePreparation ? FichePreparation(contexte, jour_, generation_)
                                          : DetailCommandes(contexte, jour_, generation_));
  if (titre == kFichePreparation) imprime_ = {jour_.Jour, jour_.Repas, jour_.Dagos, jour_.Sandwichs};
  Annoncer();
}
