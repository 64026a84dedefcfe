#include "screens/documents/frm_manques.h"

#include <algorithm>
#include <set>

#include "core/accord.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

namespace {

enum TEtat { SansDocument, Incomplet };

QString Resume(const std::vector<TManque>& manques) {
  std::set<const TEleve*> sans;
  for (const TManque& manque : manques)
    if (manque.SansDocument && manque.Eleve != nullptr) sans.insert(manque.Eleve);
  if (sans.empty()) return u"Tout s'imprime, mais il manque ceci :"_s;
  return Compter(static_cast<qint64>(sans.size()), u"élève n'est pas imprimé"_s,
                 u"élèves ne sont pas imprimés"_s) %
         u" tant qu'il manque ceci :";
}

}  // namespace

TFrmManques::TFrmManques(const std::vector<TManque>& manques, bool imprimable, bool avecChamps)
    : Grille(
          {{u"Élève"_s, 190}, {u"Classe"_s, 70}, {u"Ce qui manque"_s, 420}, {u"Suite"_s, 136, TGenre::Etat}}),
      manques_(manques),
      imprimable_(imprimable),
      avecChamps_(avecChamps),
      texte_(Resume(manques)) {
  Grille.Etats = {{u"Pas imprimé"_s, u"data-error"_s}, {u"Imprimé sans"_s, u"data-warning"_s}};
  for (const TManque& manque : manques_)
    Grille.Ajouter({manque.Eleve != nullptr ? manque.Eleve->NomComplet() : u"L'école"_s,
                    manque.Eleve != nullptr ? manque.Eleve->LibelleClasse() : QString(),
                    manque.Texte,
                    {}},
                   {}, manque.SansDocument ? SansDocument : Incomplet);
  Grille.ChoisirLigne(0);
}

void TFrmManques::btnAllerClick() {
  const int ligne = Grille.LigneCourante();
  if (ligne < 0 || !avecChamps_) return;
  const TManque& manque = manques_[static_cast<std::size_t>(ligne)];
  if (manque.Eleve == nullptr) return;  // no record leads there
  choisi_ = &manque;
  Valider();
}

void TFrmManques::Valider() {
  ResultatModal = TResultatModal::Valide;
  Fermer();
}
