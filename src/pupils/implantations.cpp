#include "pupils/implantations.h"

using namespace Qt::StringLiterals;

QString TImplantation::AdresseComplete() const { return Adresse % u" - " % CodePostal % u' ' % Localite; }

TImplantations::TImplantations(TDataModule1& base) : TCollection(base) { Charger(); }

void TImplantations::DefineQuery() {
  SelectSql = u"SELECT * FROM IMPLANTATION ORDER BY CODE_IMPLANTATION"_s;
  TableName = u"IMPLANTATION"_s;
  KeyField = "IMPLANTATION_ID";
  CounterName = u"IMPLANTATION"_s;
}

namespace {

constexpr struct {
  const char* colonne;
  QString TImplantation::*champ;
} kTextes[] = {
    {"CODE_IMPLANTATION", &TImplantation::Code},   {"LIBELLE_COURT", &TImplantation::LibelleCourt},
    {"LIBELLE_LONG", &TImplantation::LibelleLong}, {"ADRESSE", &TImplantation::Adresse},
    {"CODE_POSTAL", &TImplantation::CodePostal},   {"LOCALITE", &TImplantation::Localite},
    {"TELEPHONE", &TImplantation::Telephone},      {"FAX", &TImplantation::Fax},
    {"RESPONSABLE", &TImplantation::Responsable},  {"RESPONSABLE_PRENOM", &TImplantation::ResponsablePrenom},
};

}  // namespace

void TImplantations::LoadItems(TCurseur& ligne) {
  TImplantation& implantation = Nouveau(ligne);
  for (const auto& [colonne, champ] : kTextes) implantation.*champ = ligne.Texte(colonne);
  implantation.Obsolete = ligne.EstVrai("OBSOLETE");
}

void TImplantations::StoreRecord(const TImplantation& implantation, TLigne& ligne) const {
  for (const auto& [colonne, champ] : kTextes) ligne.Ecrire(colonne, implantation.*champ);
  ligne.EcrireDrapeau("OBSOLETE", implantation.Obsolete);
}

TImplantation* TImplantations::TrouverParCode(const QString& code, const TImplantation* sauf) const {
  const QString cherche = code.trimmed();
  for (TImplantation& implantation : *this)
    if (&implantation != sauf && implantation.Code.compare(cherche, Qt::CaseInsensitive) == 0)
      return &implantation;
  return nullptr;
}

bool TImplantations::Admise(const TImplantation& implantation) const {
  if (implantation.Code.isEmpty()) return false;
  if (TrouverParCode(implantation.Code, &implantation) != nullptr)
    throw EImplantationExist(u"Un objet avec un code identique existe déjà dans le système"_s);
  return true;
}

TImplantation* TImplantations::AddImplantation(std::unique_ptr<TImplantation> implantation) {
  return Admise(*implantation) ? &Add(std::move(implantation)) : nullptr;
}

void TImplantations::AddImplantation(TImplantation& implantation) {
  if (Admise(implantation)) Add(implantation);
}
