#pragma once
#include <functional>

#include "screens/contexte_ecran.h"
#include "screens/documents/assistant.h"

/// How a screen prints: titles to the wizard, the question of the date, the wait, what there is to say,
/// the previews.
class TImprimeur {
 public:
  /// An answer that comes before any title was proposed is about these.
  TImprimeur(const TContexteEcran& contexte, std::vector<TTitreOffert> titres)
      : contexte_(contexte),
        titres_(std::move(titres)),
        etiquettes_(contexte.Etiquettes, contexte.Dialogues()) {}

  /// The day of documents about meals, and the words of the second generation; without it they are of today.
  void DefinirJourRepas(TDateTime jour, bool nouveauxRepas) {
    jourRepas_ = jour;
    nouveauxRepas_ = nouveauxRepas;
  }
  /// How to go to what is missing, of a pupil or of the school; without it nothing leads there. The screen
  /// that asked must outlive it.
  std::function<void(const TManque& manque)> SurAllerAuChamp;
  /// A report went to a printer or into a PDF.
  std::function<void(const TRapport& rapport)> SurSortie;

  /// The user chooses one of these titles in the wizard, and gets its document. `moisEcran`: the month that
  /// the screen shows, 1 to 12; 0 for none.
  void Proposer(std::vector<TTitreOffert> titres, int moisEcran = 0);
  /// The wizard's answer about the titles that were proposed last. An index of none is passed over.
  void Imprimer(TChoixDocument choix);
  /// A document that is in no list: it is made under the wait cursor, then shown.
  void Faire(const std::function<TResultat(const TContexteDocument&)>& construire);

 private:
  /// What a document says and misses, then its previews one after the other.
  void Montrer(TResultat resultat);
  TTitreAssistant Offert(const TTitreDocument& montre, const TTitreDocument& fait);
  /// False when the user has it seen to first.
  bool PasseManques(const TResultat& resultat);

  const TContexteEcran& contexte_;
  std::vector<TTitreOffert> titres_;
  TDateTime jourRepas_ = 0.0;
  bool nouveauxRepas_ = false;
  TEtiquettes etiquettes_;  ///< keeps its engine for as long as the screen
};
