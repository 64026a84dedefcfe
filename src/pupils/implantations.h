#pragma once
#include "core/distributor.h"
#include "core/exceptions.h"

/// Letters that the code of a site may have.
inline constexpr int kCodeImplantationMaximum = 10;

/// A site of the school.
struct TImplantation : TBaseObject {
  QString Code;
  QString LibelleCourt;
  QString LibelleLong;
  QString Adresse;
  QString CodePostal;
  QString Localite;
  QString Telephone;
  QString Fax;
  QString Responsable;
  QString ResponsablePrenom;
  bool Obsolete = false;

  /// "Rue Haute 1 - 6000 Charleroi"
  QString AdresseComplete() const;
};

/// Two sites with one code.
class EImplantationExist : public Exception {
 public:
  using Exception::Exception;
};

/// The sites of the school, by code.
class TImplantations : public TCollection<TImplantation> {
 public:
  explicit TImplantations(TDataModule1& base);

  /// A new or changed site. One without a code is left alone (null is returned for a new one); the
  /// code of another site raises EImplantationExist.
  TImplantation* AddImplantation(std::unique_ptr<TImplantation> implantation);
  void AddImplantation(TImplantation& implantation);

  /// First site with that code, blanks around it and case apart; null when there is none.
  TImplantation* TrouverParCode(const QString& code, const TImplantation* sauf = nullptr) const;

 protected:
  void DefineQuery() override;

 private:
  bool Admise(const TImplantation& implantation) const;
};
