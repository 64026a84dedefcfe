#pragma once
#include <QImage>
#include <memory>
#include <optional>

#include "core/base_object.h"
#include "core/currency.h"
#include "core/dates.h"
#include "pupils/classe.h"

class TAllFraisEleve;
class TDataModule1;

/// A pupil, or a member of the staff, who is a pupil of a class whose name holds "PROF". What is read
/// on first use - fees, photo - lives as long as the pupil.
class TEleve : public TBaseObject {
 public:
  TEleve();
  ~TEleve() override;

  QString NomComplet() const;
  /// "P3 A"; " " without class.
  QString LibelleClasse() const;
  /// By the class alone, without the sub-class.
  TCategorie Categorie() const { return CategorieDeClasse(CodeClasse); }
  /// Short name of the site, or its code when it has none.
  QString LibelleImplantation() const;

  /// The fee lines of the year, read on first use; null when there is no database to read from.
  TAllFraisEleve* GetAllFrais() const;

  /// Thumbnail of 95 x 110 pixels, kept; a null picture without a photo. A damaged photo raises
  /// Exception once and then counts as none.
  const QImage& GetPhoto() const;
  /// Stores the picture at its full size. Raises Exception.
  void SetPhoto(const QImage& image);
  void DeletePhoto();

  /// Number of the tax attestation, taken and stored at once the first time, for good. 0 when no
  /// number can be had, which the user has then been told.
  int GetNumAttestation();

  TEleves* Eleves = nullptr;  ///< the collection it belongs to
  QString Nom;
  QString Prenom;
  QString Matricule;          ///< with the dashes of the school register
  TClasse* Classe = nullptr;  ///< in the year loaded; null for one that has been added since
  QString CodeClasse;         ///< "M1", "P3", "PROFESSEURS"
  QString SousClasse;
  QString CodeImplantation;
  TDateTime DateNaissance = 0.0;
  QString NomResponsable;
  QString PrenomResponsable;
  QString Adresse;
  QString Numero;
  int CodePostal = 0;
  QString Localite;
  QString NumCompte;  ///< account for the reimbursement of a positive balance
  QString NomTitulaireCompte;
  QString NomResponsable2;
  QString PrenomResponsable2;
  QString Adresse2;
  QString Numero2;
  int CodePostal2 = 0;
  QString Localite2;
  bool Flg2eEnfant = false;  ///< pays the price of a second child
  bool Flg3eEnfant = false;  ///< day-care and study are free
  bool FlgFactureDetail = false;
  bool FlgDomiciliation = false;
  bool FlgParentSepare = false;
  int NumAttestation = 0;         ///< 0 when none was given; see GetNumAttestation
  bool FlgImpotRespons2 = false;  ///< the tax attestation is in the name of the second adult
  bool FlgRadie = false;

 private:
  TDataModule1& Base() const;
  std::optional<QByteArray> OctetsPhoto() const;

  mutable std::unique_ptr<TAllFraisEleve> allFrais_;
  mutable std::optional<QImage> photo_;
};
