#include "pupils/implantations.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TImplantation> kColonnes[] = {
    Texte<&TImplantation::Code>("CODE_IMPLANTATION"),
    Texte<&TImplantation::LibelleCourt>("LIBELLE_COURT"),
    Texte<&TImplantation::LibelleLong>("LIBELLE_LONG"),
    Texte<&TImplantation::Adresse>("ADRESSE"),
    Texte<&TImplantation::CodePostal>("CODE_POSTAL"),
    Texte<&TImplantation::Localite>("LOCALITE"),
    Texte<&TImplantation::Telephone>("TELEPHONE"),
    Texte<&TImplantation::Fax>("FAX"),
    Texte<&TImplantation::Responsable>("RESPONSABLE"),
    Texte<&TImplantation::ResponsablePrenom>("RESPONSABLE_PRENOM"),
    Drapeau<&TImplantation::Obsolete>("OBSOLETE"),
};

}  // namespace

QString TImplantation::AdresseComplete() const { return Adresse % u" - " % CodePostal % u' ' % Localite; }

TImplantations::TImplantations(TDataModule1& base) : TCollection(base) { Charger(); }

void TImplantations::DefineQuery() {
  SelectSql = u"SELECT * FROM IMPLANTATION ORDER BY CODE_IMPLANTATION"_s;
  TableName = u"IMPLANTATION"_s;
  KeyField = "IMPLANTATION_ID";
  CounterName = u"IMPLANTATION"_s;
  Colonnes = kColonnes;
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
