#include "pupils/eleve.h"

#include "core/curseur.h"
#include "core/data_module.h"
#include "core/data_set.h"
#include "core/exceptions.h"
#include "core/query_internal.h"
#include "core/redimensionner.h"
#include "pupils/eleves.h"
#include "pupils/photo.h"
#include "services/frais_eleve.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kVignette(95, 110);

QString SelectPhoto() { return u"SELECT * FROM ELEVE_PHOTO WHERE ELEVE_ID = ?"_s; }

}  // namespace

TEleve::TEleve() = default;
TEleve::~TEleve() = default;

QString TEleve::NomComplet() const { return Nom % u' ' % Prenom; }

QString TEleve::LibelleClasse() const { return CodeClasse % u' ' % SousClasse; }

QString TEleve::LibelleImplantation() const {
  return Eleves != nullptr ? Eleves->LibelleImplantation(CodeImplantation) : CodeImplantation;
}

TDataModule1& TEleve::Base() const {
  if (Eleves == nullptr || Id == -1) throw Exception(u"Cet élève n'est pas encore enregistré."_s);
  return Eleves->BaseDeDonnees();
}

// A pupil who is enrolled twice in the year has one ledger, that of the first of the two.
TAllFraisEleve* TEleve::GetAllFrais() const {
  const TEleve* premier = Eleves != nullptr && Id != -1 ? Eleves->TrouverParId(Id) : nullptr;
  if (premier != nullptr && premier != this) return premier->GetAllFrais();
  if (!allFrais_ && Eleves != nullptr && Id != -1 && !Eleves->HorsLigne)
    allFrais_ = std::make_unique<TAllFraisEleve>(Base(), Id, Eleves->AnneeScolaire, Eleves->ListeFrais);
  return allFrais_.get();
}

std::optional<QByteArray> TEleve::OctetsPhoto() const {
  if (Eleves == nullptr || Id == -1) return std::nullopt;
  if (Eleves->HorsLigne) {
    TDataSet* photos = Eleves->SourcePhotos;
    if (photos == nullptr || !photos->Localiser(u"ELEVE_ID"_s, Id)) return std::nullopt;
    return photos->Valeur(u"PHOTO"_s).toByteArray();
  }
  TCurseur ligne(Base(), SelectPhoto(), {Id});
  if (!ligne.Suivant()) return std::nullopt;
  return ligne.Octets("PHOTO");
}

const QImage& TEleve::GetPhoto() const {
  if (photo_) return *photo_;
  photo_.emplace();
  if (const auto octets = OctetsPhoto()) {
    const QImage image = DecoderJpeg(*octets);
    QImage vignette(kVignette, QImage::Format_RGB32);
    Redimensionner(image, vignette);
    photo_ = vignette;
  }
  return *photo_;
}

bool TEleve::SetPhoto(const QImage& image) {
  const QByteArray octets = EncoderJpeg(image);
  TDataModule1& base = Base();
  int cle = 0;
  {
    TCurseur ligne(base, SelectPhoto(), {Id});
    if (ligne.Suivant()) cle = ligne.Entier("ELEVE_PHOTO_ID");
  }
  QString sql = u"UPDATE ELEVE_PHOTO SET ELEVE_ID = :ELEVE, PHOTO = :PHOTO WHERE ELEVE_PHOTO_ID = :CLE"_s;
  if (cle == 0) {
    sql = u"INSERT INTO ELEVE_PHOTO (ELEVE_PHOTO_ID, ELEVE_ID, PHOTO) VALUES (:CLE, :ELEVE, :PHOTO)"_s;
    cle = base.GetNextId(u"ELEVE_PHOTO"_s);
    if (cle == -1) return false;
  }
  TQueryInternal(base, sql)
      .Parametre(u"CLE"_s, cle)
      .Parametre(u"ELEVE"_s, Id)
      .Parametre(u"PHOTO"_s, octets)
      .Executer();
  photo_.reset();
  return true;
}

void TEleve::DeletePhoto() {
  TQueryInternal(Base(), u"DELETE FROM ELEVE_PHOTO WHERE ELEVE_ID=" % QString::number(Id)).Executer();
  photo_.reset();
}

int TEleve::GetNumAttestation() {
  if (NumAttestation != 0) return NumAttestation;
  TDataModule1& base = Base();
  const QString cet = u" where ELEVE_ID=" % QString::number(Id);
  {
    // Another workstation may have printed it since the load.
    TCurseur ligne(base, u"SELECT NUM_ATTEST_2015 FROM ELEVES" % cet);
    if (ligne.Suivant()) NumAttestation = ligne.Entier("NUM_ATTEST_2015");
  }
  if (NumAttestation != 0) return NumAttestation;
  const int numero = NextId(base, u"VIRTUAL_ATTESTATION_2015"_s);
  if (numero == -1) return 0;
  TQueryInternal(base, u"UPDATE ELEVES SET NUM_ATTEST_2015 = " % QString::number(numero) % cet).Executer();
  NumAttestation = numero;
  return numero;
}
