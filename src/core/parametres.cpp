#include "core/parametres.h"

#include "core/conversions.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

template <class Conversion>
auto Convertir(const TParametres& parametres, int id, Conversion conversion) {
  try {
    return conversion(parametres.GetParametre(id));
  } catch (const EConvertError& e) {
    throw EConvertError(u"Paramètre %1 : %2"_s.arg(id).arg(e.Message));
  }
}

}  // namespace

TParametres::TParametres(TDataModule1& base) : TCollection(base) { Charger(); }

void TParametres::DefineQuery() {
  SelectSql = u"SELECT * FROM PARAMETRE"_s;
  TableName = u"PARAMETRE"_s;
  KeyField = "PARAMETRE_ID";
  CounterName = u"*"_s;
}

void TParametres::LoadItems(TCurseur& ligne) { Nouveau(ligne).Valeur = ligne.Texte("VALEUR"); }

void TParametres::StoreRecord(const TParametre& parametre, TLigne& ligne) const {
  ligne.Ecrire("VALEUR", parametre.Valeur);
}

TParametre* TParametres::FindParametre(int id) const {
  for (TParametre& parametre : *this)
    if (parametre.Id == id) return &parametre;
  return nullptr;
}

QString TParametres::GetParametre(int id) const {
  const TParametre* parametre = FindParametre(id);
  return parametre != nullptr ? parametre->Valeur : QString();
}

int TParametres::Entier(int id) const { return Convertir(*this, id, StrToInt); }

Currency TParametres::Montant(int id) const { return Convertir(*this, id, StrToCurr); }

void TParametres::SetParametre(int id, const QString& valeur) {
  if (TParametre* parametre = FindParametre(id)) {
    parametre->Valeur = valeur;
    Add(*parametre);
    return;
  }
  auto nouveau = std::make_unique<TParametre>();
  nouveau->Id = id;
  nouveau->Valeur = valeur;
  Add(std::move(nouveau));
}
