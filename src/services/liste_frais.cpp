#include "services/liste_frais.h"

using namespace Qt::StringLiterals;

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
}

void TListeFrais::LoadItems(TCurseur& ligne) {
  TFrais& frais = Nouveau(ligne);
  frais.Libelle = ligne.Texte("LIBELLE");
  frais.FlgRecurent = ligne.EstVrai("FLG_RECURENT");
  frais.Cout = ligne.Montant("COUT");
  frais.Mois = ligne.Entier("MOIS");
  frais.TypeFrais = static_cast<TTypeFrais>(ligne.Entier("TYPE_FRAIS"));
  frais.FlgPrevisionnel = ligne.EstVrai("FLG_PREVISIONNEL");
  frais.FlgNonObligatoire = ligne.EstVrai("FLG_NON_OBLIGATOIRE");
  frais.FlgService = ligne.EstVrai("FLG_SERVICE");
}

void TListeFrais::StoreRecord(const TFrais& frais, TLigne& ligne) const {
  ligne.Ecrire("LIBELLE", frais.Libelle);
  ligne.EcrireOuiNon("FLG_RECURENT", frais.FlgRecurent);
  ligne.Ecrire("COUT", frais.Cout);
  ligne.Ecrire("MOIS", frais.Mois);
  ligne.Ecrire("TYPE_FRAIS", static_cast<int>(frais.TypeFrais));
  ligne.EcrireDrapeau("FLG_PREVISIONNEL", frais.FlgPrevisionnel);
  ligne.EcrireDrapeau("FLG_NON_OBLIGATOIRE", frais.FlgNonObligatoire);
  ligne.EcrireDrapeau("FLG_SERVICE", frais.FlgService);
  ligne.Ecrire("ANNEE_SCOLAIRE", annee_);
}

TFrais* TListeFrais::FraisParId(int id) const {
  for (TFrais& frais : *this)
    if (frais.Id == id) return &frais;
  return nullptr;
}
