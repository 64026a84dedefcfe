#include "screens/documents/frm_manques.h"

#include <algorithm>

#include "core/accord.h"
#include "pupils/eleve.h"

using namespace Qt::StringLiterals;

namespace {

enum TEtat { PasImprime, ImprimeSans };

}  // namespace

TFrmManques::TFrmManques(const TResultat& resultat, bool avecChamps)
    : Grille(
          {{u"Élève"_s, 190}, {u"Classe"_s, 70}, {u"Ce qui manque"_s, 420}, {u"Suite"_s, 136, TGenre::Etat}}),
      resultat_(resultat) {
  for (const TManque& manque : resultat.Manques)
    if (manque.SansDocument) sans_.insert(manque.Eleve);
  texte_ = Resume();
  Grille.Etats = {{u"Pas imprimé"_s, u"data-error"_s}, {u"Imprimé sans"_s, u"data-warning"_s}};
  for (const TManque& manque : resultat.Manques) {
    const int ligne = Grille.Ajouter({manque.Eleve != nullptr ? manque.Eleve->NomComplet() : u"L'école"_s,
                                      manque.Eleve != nullptr ? manque.Eleve->LibelleClasse() : QString(),
                                      manque.Texte,
                                      {}},
                                     {}, SansDocument(manque) ? PasImprime : ImprimeSans);
    if (!avecChamps) continue;
    if (manque.Eleve != nullptr && premier_ < 0) premier_ = ligne;
    menent_ = menent_ || Mene(manque);
  }
  Grille.ChoisirLigne(std::max(0, premier_));
}

bool TFrmManques::Mene(const TManque& manque) { return manque.Eleve != nullptr || !manque.Champ.isEmpty(); }

QString TFrmManques::Titre() const {
  const QString annee =
      Imprimable() ? resultat_.Rapports.front().Variables().Valeur(u"AnneeRevenus") : QString();
  return annee.isEmpty() ? u"Ce qui manque"_s : u"Ce qui manque, revenus de %1"_s.arg(annee);
}

QString TFrmManques::LibelleImprimer() const {
  return sans_.empty() ? u"Imprimer"_s : u"Imprimer les autres"_s;
}

bool TFrmManques::SansDocument(const TManque& manque) const {
  return manque.SansDocument || (manque.Eleve != nullptr && sans_.contains(manque.Eleve));
}

QString TFrmManques::Resume() const {
  const auto eleves = static_cast<qint64>(sans_.size()) - (sans_.contains(nullptr) ? 1 : 0);
  if (sans_.empty())
    return Imprimable() ? u"Tout s'imprime, mais il manque ceci :"_s : u"Rien à imprimer. Il manque ceci :"_s;
  if (eleves == 0) return u"Il manque ceci :"_s;
  const bool autres =
      !std::ranges::all_of(resultat_.Manques, [this](const TManque& manque) { return SansDocument(manque); });
  return Compter(eleves, u"élève n'est pas imprimé"_s, u"élèves ne sont pas imprimés"_s) %
         (autres ? u" tant qu'il manque ceci ; les autres lignes n'empêchent pas d'imprimer :"
                 : u" tant qu'il manque ceci :");
}

void TFrmManques::btnAllerClick() {
  const int ligne = Grille.LigneCourante();
  if (ligne < 0 || !AvecChamps()) return;
  const TManque& manque = resultat_.Manques[static_cast<std::size_t>(ligne)];
  if (!Mene(manque)) return;
  choisi_ = &manque;
  Valider();
}

void TFrmManques::Valider() {
  ResultatModal = TResultatModal::Valide;
  Fermer();
}
