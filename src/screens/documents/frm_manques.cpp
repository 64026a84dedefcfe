#include "screens/documents/frm_manques.h"

#include <algorithm>

#include "core/accord.h"

using namespace Qt::StringLiterals;

namespace {

enum TEtat { PasImprime, ImprimeSans, RienARemplir };

}  // namespace

TFrmManques::TFrmManques(const TResultat& resultat, bool avecChamps)
    : Grille(
          {{u"Élève"_s, 190}, {u"Classe"_s, 70}, {u"Ce qui manque"_s, 420}, {u"Suite"_s, 136, TGenre::Etat}}),
      resultat_(resultat) {
  for (const TManque& manque : resultat.Manques)
    if (manque.SansDocument) sans_.insert(manque.EleveId);
  texte_ = Resume();
  Grille.Etats = {{u"Pas imprimé"_s, u"data-error"_s},
                  {u"Imprimé sans"_s, u"data-warning"_s},
                  {u"Rien à remplir"_s, u"data-information"_s}};
  for (const TManque& manque : resultat.Manques) {
    const QString qui = manque.EleveId != 0 ? manque.Nom : u"L'école"_s;
    const int ligne = Grille.Ajouter({qui, manque.Classe, manque.Texte, {}}, {}, Etat(manque));
    if (!avecChamps) continue;
    if (manque.EleveId != 0 && premier_ < 0) premier_ = ligne;
    menent_ = menent_ || Mene(manque);
  }
  Grille.ChoisirLigne(std::max(0, premier_));
}

bool TFrmManques::Mene(const TManque& manque) { return manque.EleveId != 0 || !manque.Champ.isEmpty(); }

int TFrmManques::Etat(const TManque& manque) const {
  if (SansDocument(manque)) return PasImprime;
  return Mene(manque) ? ImprimeSans : RienARemplir;
}

bool TFrmManques::PeutAller() const {
  const int ligne = Grille.LigneCourante();
  return menent_ && ligne >= 0 && Mene(resultat_.Manques[static_cast<std::size_t>(ligne)]);
}

QString TFrmManques::Titre() const {
  const QString annee =
      Imprimable() ? resultat_.Rapports.front().Variables().Valeur(u"AnneeRevenus") : QString();
  return annee.isEmpty() ? u"Ce qui manque"_s : u"Ce qui manque, revenus de %1"_s.arg(annee);
}

QString TFrmManques::LibelleImprimer() const {
  return sans_.empty() ? u"Imprimer"_s : u"Imprimer les autres"_s;
}

bool TFrmManques::SansDocument(const TManque& manque) const {
  return manque.SansDocument || (manque.EleveId != 0 && sans_.contains(manque.EleveId));
}

QString TFrmManques::Resume() const {
  const auto eleves = static_cast<qint64>(sans_.size()) - (sans_.contains(0) ? 1 : 0);
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
  if (!PeutAller()) return;
  choisi_ = &resultat_.Manques[static_cast<std::size_t>(Grille.LigneCourante())];
  Valider();
}

void TFrmManques::Valider() {
  ResultatModal = TResultatModal::Valide;
  Fermer();
}
