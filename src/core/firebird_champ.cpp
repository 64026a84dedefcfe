#include <cstring>

#include "core/firebird_interne.h"

namespace Firebird {

std::int64_t EntierBrut(const TChamp& champ) {
  if (champ.nul < 0) return 0;
  const char* donnees = champ.donnees.data();
  switch (champ.type) {
    case SQL_SHORT:
      return *reinterpret_cast<const std::int16_t*>(donnees);
    case SQL_LONG:
      return *reinterpret_cast<const std::int32_t*>(donnees);
    case SQL_INT64:
      return *reinterpret_cast<const std::int64_t*>(donnees);
    default:
      return 0;
  }
}

std::int64_t Entier(const TChamp& champ) {
  std::int64_t valeur = EntierBrut(champ);
  for (short e = champ.echelle; e < 0; ++e) valeur /= 10;
  return valeur;
}

QString Texte(const TChamp& champ) {
  if (champ.nul < 0) return {};
  const char* donnees = champ.donnees.data();
  if (champ.type == SQL_VARYING) {
    short longueur = 0;
    std::memcpy(&longueur, donnees, sizeof longueur);
    return QString::fromUtf8(donnees + sizeof longueur, longueur);
  }
  if (champ.type == SQL_TEXT) {
    auto longueur = static_cast<qsizetype>(champ.donnees.size());
    while (longueur > 0 && donnees[longueur - 1] == ' ') --longueur;
    return QString::fromUtf8(donnees, longueur);
  }
  return QString::number(Entier(champ));
}

namespace {

double Reel(const TChamp& champ) {
  if (champ.type == SQL_DOUBLE) return *reinterpret_cast<const double*>(champ.donnees.data());
  return static_cast<double>(*reinterpret_cast<const float*>(champ.donnees.data()));
}

}  // namespace

Currency Montant(const TChamp& champ) {
  if (champ.nul < 0) return {};
  if (champ.type == SQL_DOUBLE || champ.type == SQL_FLOAT) return Currency::Arrondi(Reel(champ));
  std::int64_t unites = EntierBrut(champ);
  for (int e = champ.echelle; e > -4; --e) unites *= 10;
  for (int e = champ.echelle; e < -4; ++e) unites /= 10;
  return Currency::Brut(unites);
}

TDateTime Date(const TChamp& champ) {
  if (champ.nul < 0) return 0.0;
  ISC_DATE jours = 0;  // days since 17 November 1858, first in a timestamp too
  std::memcpy(&jours, champ.donnees.data(), sizeof jours);
  return static_cast<double>(jours - 15018);
}

TDateTime Heure(const TChamp& champ) {
  if (champ.nul < 0) return 0.0;
  ISC_TIME unites = 0;  // ten-thousandths of a second, behind the date in a timestamp
  const std::size_t debut = champ.type == SQL_TIMESTAMP ? sizeof(ISC_DATE) : 0;
  std::memcpy(&unites, champ.donnees.data() + debut, sizeof unites);
  return static_cast<double>((unites + 5) / 10) / 86400000.0;
}

QByteArray Octets(const TChamp& champ, isc_db_handle base, TTransaction& transaction) {
  if (champ.nul < 0) return {};
  if (champ.type != SQL_BLOB) return Texte(champ).toUtf8();
  ISC_QUAD id;
  std::memcpy(&id, champ.donnees.data(), sizeof id);
  isc_blob_handle blob = 0;
  ISC_STATUS_ARRAY statut;
  isc_open_blob2(statut, &base, transaction.Poignee(), &blob, &id, 0, nullptr);
  Verifier(statut);
  QByteArray octets;
  char segment[16384];
  unsigned short lus = 0;
  for (;;) {
    const ISC_STATUS fin = isc_get_segment(statut, &blob, &lus, sizeof segment, segment);
    if (fin != 0 && fin != isc_segment) break;
    octets.append(segment, lus);
  }
  const bool complet = statut[1] == isc_segstr_eof;
  ISC_STATUS_ARRAY ignore;
  isc_close_blob(ignore, &blob);
  if (!complet) Verifier(statut);
  return octets;
}

}  // namespace Firebird
