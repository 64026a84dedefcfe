#include "core/parametres.h"

TParametres::TParametres(TDataModule1& base) : TCollection(base) { Charger(); }

void TParametres::DefineQuery() {
  SelectSql = QStringLiteral("SELECT * FROM PARAMETRE");
  TableName = QStringLiteral("PARAMETRE");
  KeyField = "PARAMETRE_ID";
  CounterName = QStringLiteral("*");
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
