#include "screens/payments/frm_attribution_compte.h"

using namespace Qt::StringLiterals;

TFrmAttributionCompte::TFrmAttributionCompte(IDialogues& dialogues, const QStringList& numeros,
                                             const QStringList& noms)
    : Comptes({{u"Numéro de compte"_s, 200}, {u"Donneur d'ordre"_s, 260}}), dialogues_(dialogues) {
  for (qsizetype i = 0; i < numeros.size(); ++i) Comptes.Ajouter({numeros[i], noms[i]});
}

bool TFrmAttributionCompte::btnSelectionnerClick() {
  if (Choisi() < 0) {
    dialogues_.Message(u"Veuillez sélectionner un numéro de compte"_s);
    return false;
  }
  ResultatModal = TResultatModal::Valide;
  return Fermer();
}
