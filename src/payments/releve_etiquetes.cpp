#include "core/chaines.h"
#include "core/conversions.h"
#include "core/exceptions.h"
#include "core/lecture_dates.h"
#include "core/texte_separe.h"
#include "payments/releve.h"

using namespace Qt::StringLiterals;

namespace {

enum { kChampDate = 4, kChampMontant = 6, kChampDetail = 9, kNombreChamps = 10 };

constexpr QStringView kDonneur = u"De: ";
constexpr QStringView kCompte = u"IBAN: ";
/// In the order in which they are looked for, wherever they stand.
constexpr QStringView kEtiquettes[] = {u"Communication : ", u"Info personnelle: ", u"Communication: "};
/// What stands at least between two runs of the detail text.
const QString kEntreDeux(10, u' ');

/// What follows the label, up to the blanks that end its run; "" when none do.
QString Suite(QStringView morceau, QStringView etiquette) {
  const qsizetype fin = morceau.indexOf(kEntreDeux);
  if (fin < 0) return {};
  return morceau.mid(etiquette.size(), fin + 1).trimmed().toString();
}

/// From the first label to the text behind it, or to the end when that is not there. `fin` as a place.
QStringView Morceau(QStringView detail, QStringView etiquette, qsizetype fin) {
  const qsizetype debut = detail.indexOf(etiquette);
  return debut < 0 || fin < debut ? QStringView() : detail.sliced(debut, fin - debut);
}

QString Donneur(QStringView detail) {
  const qsizetype debut = detail.indexOf(kDonneur);
  if (debut < 0) return {};
  const qsizetype fin = detail.indexOf(kCompte, debut);
  return Suite(Morceau(detail, kDonneur, fin < 0 ? detail.size() : fin), kDonneur);
}

/// Place and text of the label of the communication; -1 without one.
std::pair<qsizetype, QStringView> Etiquette(QStringView detail) {
  for (const QStringView etiquette : kEtiquettes)
    if (const qsizetype place = detail.indexOf(etiquette); place >= 0) return {place, etiquette};
  return {-1, {}};
}

/// All that stands behind the label but the last character of the line.
QString Communication(QStringView detail, qsizetype debut) {
  const QStringView reste = detail.chopped(1);
  if (debut > reste.size()) return {};
  return reste.sliced(debut).trimmed().toString().replace(u"***"_s, u"+++"_s);
}

/// "05-10-16" and "05-10-2016" with slashes and four digits for the year; others stay.
QString Reconstruire(const QString& date) {
  const auto morceaux = [&](const QString& annee) {
    return QString(date.first(2) % u'/' % date.sliced(3, 2) % u'/' % annee);
  };
  if (date.size() == 10) return morceaux(date.sliced(6));
  return date.size() == 8 ? morceaux(u"20"_s + date.sliced(6)) : date;
}

/// The line as text. Raises EConvertError when it is cut short.
TFauteReleve Decouper(const QString& texte) {
  QStringList champs;
  DecouperStrict(texte, u';', champs);
  if (champs.size() < kNombreChamps)
    throw EConvertError(u"elle n'a que %1 champs sur %2."_s.arg(champs.size()).arg(+kNombreChamps));
  const QString& detail = champs[kChampDetail];
  const auto [place, etiquette] = Etiquette(detail);
  TFauteReleve ligne;
  ligne.Donneur = Donneur(detail);
  ligne.Date = Reconstruire(champs[kChampDate]);
  ligne.Montant = champs[kChampMontant];
  ligne.Compte = Suite(Morceau(detail, kCompte, place < 0 ? detail.size() : place), kCompte);
  if (place >= 0) ligne.Communication = Communication(detail, place + etiquette.size());
  return ligne;
}

/// The movement; none for a negative amount. Raises EConvertError.
std::optional<TMouvement> Convertir(const TFauteReleve& texte) {
  const TDateTime date = texte.Date.contains(u'-') ? LireDateTiret(texte.Date) : LireDateBarre(texte.Date);
  const Currency montant = StrToCurr(QString(texte.Montant).remove(u'.'));
  if (montant < Currency()) return {};
  if (date == 0.0) throw EConvertError(u"« %1 » n'est pas une date."_s.arg(texte.Date.left(60)));
  return TMouvement{texte.Donneur, date, montant, SansRetourLigne(texte.Communication).trimmed(),
                    texte.Compte};
}

}  // namespace

TReleveLu LireLignesEtiquetees(const QByteArray& octets) {
  TReleveLu releve;
  const QStringList lignes = LignesDeTexte(octets);
  for (int i = 1; i < lignes.size() && !releve.Faute; ++i) {
    if (lignes[i].trimmed().isEmpty()) continue;
    TFauteReleve texte;
    try {
      texte = Decouper(lignes[i]);
      if (texte.Donneur.isEmpty()) continue;  // no payer, no movement
      if (auto mouvement = Convertir(texte)) releve.Mouvements.push_back(std::move(*mouvement));
    } catch (const EConvertError& e) {
      texte.Message = FauteDeLigne(i, e.Message);
      releve.Faute = std::move(texte);
    }
  }
  return releve;
}
