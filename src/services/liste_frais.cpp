#include "services/liste_frais.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TFrais> kColonnes[] = {
    Texte<&TFrais::Libelle>("LIBELLE"),
    OuiNon<&TFrais::FlgRecurent>("FLG_RECURENT"),
    Montant<&TFrais::Cout>("COUT"),
    Entier<&TFrais::Mois>("MOIS"),
    Entier<&TFrais::TypeFrais>("TYPE_FRAIS"),
    Drapeau<&TFrais::FlgPrevisionnel>("FLG_PREVISIONNEL"),
    Drapeau<&TFrais::FlgNonObligatoire>("FLG_NON_OBLIGATOIRE"),
    Drapeau<&TFrais::FlgService>("FLG_SERVICE"),
};

}  // namespace

const QStringList& TextesTypeFrais() {
  static const QStringList textes{u"l'école"_s, u"classe"_s, u"élève"_s};
  return textes;
}

const QStringList& TextesTypeFraisPluriel() {
  static const QStringList textes{u"l'école"_s, u"classes"_s, u"élèves"_s};
  return textes;
}

const QStringList& TextesTypeFraisChoix() {
  static const QStringList textes{u"toute l'école"_s, u"une ou plusieurs classes"_s,
                                  u"un ou plusieurs élèves"_s};
  return textes;
}

int TFrais::NombreElevesFrais() const {
  if (base_ == nullptr) return 0;
  TCurseur ligne(*base_, u"SELECT COUNT(*) from FRAIS_ELEVE WHERE LISTEFRAIS_ID=" % QString::number(Id));
  return ligne.Suivant() ? ligne.Entier("COUNT") : 0;
}

const std::vector<int>& TFrais::ElevesFrais() {
  if (relireEleves_ && base_ != nullptr) {
    eleves_.clear();
    TCurseur ligne(*base_, u"SELECT ELEVE_ID from FRAIS_ELEVE WHERE LISTEFRAIS_ID=" % QString::number(Id));
    while (ligne.Suivant()) eleves_.push_back(ligne.Entier("ELEVE_ID"));
    relireEleves_ = false;
  }
  return eleves_;
}

Currency TFrais::TotalFrais() const { return FlgPrevisionnel ? Currency() : Cout * NombreElevesFrais(); }

TListeFrais::TListeFrais(TDataModule1& base, int annee) : TCollection(base), annee_(annee) { Charger(); }

void TListeFrais::DefineQuery() {
  SelectSql = u"SELECT * FROM LISTE_FRAIS WHERE ANNEE_SCOLAIRE = " % QString::number(annee_);
  TableName = u"LISTE_FRAIS"_s;
  KeyField = "LISTEFRAIS_ID";
  CounterName = u"LISTE_FRAIS"_s;
  Colonnes = kColonnes;
  Communes = {{"ANNEE_SCOLAIRE", annee_}};
}
