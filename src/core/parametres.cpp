#include "core/parametres.h"

#include "core/conversions.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr TColonne<TParametre> kColonnes[] = {
    Colonne::Texte<&TParametre::Valeur>("VALEUR"),
};

template <class Conversion>
auto Convertir(const TParametres& parametres, TParam param, Conversion conversion) {
  QString valeur = parametres.GetParametre(param);
  const char16_t* defaut = Regles(param).Defaut;
  if (valeur.isEmpty() && defaut != nullptr) valeur = QString::fromUtf16(defaut);
  try {
    return conversion(valeur);
  } catch (const EConvertError& e) {
    throw EConvertError(u"Paramètre %1 : %2"_s.arg(static_cast<int>(param)).arg(e.Message));
  }
}

}  // namespace

TParametres::TParametres(TDataModule1& base) : TCollection(base) {
  Charger();
  charge_ = true;
  try {
    RelireRegles();
  } catch (const EConvertError&) {  // the year load says so
  }
}

void TParametres::RelireRegles() { regles_ = LireReglesEcole(*this); }

void TParametres::SuivreRegles() {
  if (charge_) SuivreReglesEcole(*this, regles_);
}

void TParametres::DefineQuery() {
  SelectSql = u"SELECT * FROM PARAMETRE"_s;
  TableName = u"PARAMETRE"_s;
  KeyField = "PARAMETRE_ID";
  CounterName = u"*"_s;
  Colonnes = kColonnes;
}

QString TParametres::GetParametre(TParam param) const {
  const TParametre* parametre = FindParametre(param);
  return parametre != nullptr ? parametre->Valeur : QString();
}

int TParametres::Entier(TParam param) const { return Convertir(*this, param, StrToInt); }

Currency TParametres::Montant(TParam param) const { return Convertir(*this, param, StrToCurr); }

QString TParametres::CompteEcole() const {
  const QString virement = GetParametre(TParam::VirementIBAN);
  return virement.trimmed().isEmpty() ? GetParametre(TParam::CompteBanque) : virement;
}

void TParametres::SetParametre(TParam param, const QString& valeur) {
  if (TParametre* parametre = FindParametre(param)) {
    parametre->Valeur = valeur;
    Add(*parametre);
    return;
  }
  auto nouveau = std::make_unique<TParametre>();
  nouveau->Id = static_cast<int>(param);
  nouveau->Valeur = valeur;
  Add(std::move(nouveau));
}
