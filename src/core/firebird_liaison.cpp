#include "core/exceptions.h"
#include "core/firebird.h"
#include "core/firebird_interne.h"

using namespace Qt::StringLiterals;

namespace Firebird {
namespace {

constexpr short kUtf8 = 4;  ///< number of the character set
constexpr qsizetype kOctetsMaximum = 32765;
constexpr int kJoursAvant1899 = 15018;

struct TForme {
  short type;
  QByteArray octets;
  short longueur;
  short echelle = 0;
  short sousType = 0;
  bool nul = false;
};

template <class T>
TForme Forme(short type, T valeur, short echelle = 0) {
  return {type, {reinterpret_cast<const char*>(&valeur), sizeof valeur}, sizeof valeur, echelle};
}

const TForme kNul{SQL_TEXT, " ", 1, 0, 0, true};

ISC_QUAD EcrireBlob(isc_db_handle base, TTransaction& transaction, const QByteArray& octets) {
  constexpr qsizetype kSegment = 32768;
  ISC_STATUS_ARRAY statut;
  isc_blob_handle blob = 0;
  ISC_QUAD id{};
  isc_create_blob2(statut, &base, transaction.Poignee(), &blob, &id, 0, nullptr);
  Verifier(statut);
  for (qsizetype i = 0; i < octets.size(); i += kSegment) {
    const auto longueur = static_cast<unsigned short>(std::min(kSegment, octets.size() - i));
    isc_put_segment(statut, &blob, longueur, octets.constData() + i);
    if (statut[1] != 0) break;
  }
  ISC_STATUS_ARRAY fermeture;
  isc_close_blob(fermeture, &blob);
  Verifier(statut);
  Verifier(fermeture);
  return id;
}

/// Each value in the engine's own type: amounts are whole ten-thousandths, never floating.
struct TFormeur {
  isc_db_handle base;
  TTransaction& transaction;

  TForme operator()(std::monostate) const { return kNul; }
  TForme operator()(int v) const { return Forme(SQL_LONG, v); }
  TForme operator()(Currency v) const { return Forme(SQL_INT64, v.EnBrut(), -4); }
  // Of variable length: the engine cuts a fixed one by the widest letters that it could hold.
  TForme operator()(const QString& v) const {
    const QByteArray texte = v.toUtf8();
    if (texte.size() > kOctetsMaximum) throw Exception(MessageBaseDeDonnees(u"string right truncation"_s));
    const auto longueur = static_cast<short>(texte.size());
    const QByteArray avant(reinterpret_cast<const char*>(&longueur), sizeof longueur);
    return {SQL_VARYING, avant + texte, longueur, 0, kUtf8};
  }
  TForme operator()(QDate v) const {
    return v.isValid() ? Forme(SQL_TYPE_DATE, static_cast<ISC_DATE>(DateDeQt(v)) + kJoursAvant1899) : kNul;
  }
  TForme operator()(QTime v) const {
    return v.isValid() ? Forme(SQL_TYPE_TIME, static_cast<ISC_TIME>(v.msecsSinceStartOfDay()) * 10) : kNul;
  }
  TForme operator()(const QByteArray& v) const { return Forme(SQL_BLOB, EcrireBlob(base, transaction, v)); }
};

}  // namespace

std::vector<char> Tampon(std::size_t colonnes) {
  std::vector<char> tampon(static_cast<std::size_t>(XSQLDA_LENGTH(colonnes)));
  auto* sqlda = reinterpret_cast<XSQLDA*>(tampon.data());
  sqlda->version = SQLDA_VERSION1;
  sqlda->sqln = static_cast<short>(colonnes);
  return tampon;
}

TLiaison::TLiaison(isc_db_handle base, TTransaction& transaction, const TValeurs& valeurs)
    : places_(valeurs.size()) {
  if (valeurs.empty()) return;
  tampon_ = Tampon(valeurs.size());
  Sqlda()->sqld = Sqlda()->sqln;
  for (std::size_t i = 0; i < valeurs.size(); ++i) {
    const TForme forme = std::visit(TFormeur{base, transaction}, valeurs[i]);
    TPlace& place = places_[i];
    place = {forme.octets, static_cast<short>(forme.nul ? -1 : 0)};
    XSQLVAR& v = Sqlda()->sqlvar[i];
    v.sqltype = static_cast<short>(forme.type | 1);
    v.sqlsubtype = forme.sousType;
    v.sqlscale = forme.echelle;
    v.sqllen = forme.longueur;
    v.sqldata = place.octets.data();
    v.sqlind = &place.nul;
  }
}

XSQLDA* TLiaison::Sqlda() { return tampon_.empty() ? nullptr : reinterpret_cast<XSQLDA*>(tampon_.data()); }

}  // namespace Firebird
