#include "services/types_tarif.h"

using namespace Qt::StringLiterals;

const QStringList& TextesTypeFamille() {
  static const QStringList textes{u"indéfini"_s,
                                  u"garderie du matin"_s,
                                  u"garderie du soir"_s,
                                  u"garderie du mercredi"_s,
                                  u"étude"_s,
                                  u"repas"_s,
                                  u"soupe"_s,
                                  u"garderie du midi"_s};
  return textes;
}

const QStringList& TextesTypeJour() {
  static const QStringList textes{
      QString(),  u"lundi"_s,    u"mardi"_s,          u"mercredi"_s,
      u"jeudi"_s, u"vendredi"_s, u"tous les jours"_s, u"lundi, mardi, jeudi, vendredi"_s};
  return textes;
}

const QStringList& TextesTypeScan() {
  static const QStringList textes{QString(), u"scanning de présence"_s, u"scanning à l'entrée"_s,
                                  u"scanning à la sortie"_s};
  return textes;
}

const QStringList& TextesUnite() {
  static const QStringList textes{QString(),       u"période (forfait)"_s, u"heure"_s,
                                  u"demi heure"_s, u"quart d'heure"_s,     u"minute"_s};
  return textes;
}

const QStringList& TextesFacturation() {
  static const QStringList textes{QString(),
                                  u"par période (forfait)"_s,
                                  u"à l'heure"_s,
                                  u"à la demi-heure"_s,
                                  u"au quart d'heure"_s,
                                  u"à la minute"_s};
  return textes;
}

TGroupe GroupeTarif(TTypeFamille famille) {
  switch (famille) {
    case TTypeFamille::Indefini:
    case TTypeFamille::Matin:
    case TTypeFamille::Soir:
    case TTypeFamille::Mercredi:
    case TTypeFamille::Midi:
      return TGroupe::Garderie;
    case TTypeFamille::Etude:
      return TGroupe::Etude;
    case TTypeFamille::Soupe:
      return TGroupe::Soupe;
    case TTypeFamille::Repas:
      break;
  }
  return TGroupe::Repas;
}

bool JourConvient(TTypeJour jour, TDateTime date) {
  const int jourDate = JourLundi1(date);
  switch (jour) {
    case TTypeJour::TousLesJours:
      return jourDate <= 5;
    case TTypeJour::LundiMardiJeudiVendredi:
      return jourDate <= 5 && jourDate != 3;
    default:
      return jourDate <= 5 && static_cast<int>(jour) == jourDate;
  }
}
