#include "demo/calendrier.h"

namespace {

struct TConge {
  QDate Premier;
  QDate Dernier;
};

const QDate kRentree(2016, 9, 1);
const QDate kFinAnnee(2017, 6, 30);

const std::vector<TConge>& Conges() {
  static const std::vector<TConge> conges{
      {QDate(2016, 9, 27), QDate(2016, 9, 27)},    // Communauté française
      {QDate(2016, 10, 31), QDate(2016, 11, 4)},   // automne
      {QDate(2016, 11, 11), QDate(2016, 11, 11)},  // armistice
      {QDate(2016, 12, 26), QDate(2017, 1, 6)},    // hiver
      {QDate(2017, 1, 27), QDate(2017, 1, 27)},    // journée pédagogique
      {QDate(2017, 2, 27), QDate(2017, 3, 3)},     // carnaval
      {QDate(2017, 4, 3), QDate(2017, 4, 17)},     // printemps et lundi de Pâques
      {QDate(2017, 5, 1), QDate(2017, 5, 1)},      // fête du travail
      {QDate(2017, 5, 15), QDate(2017, 5, 15)},    // journée pédagogique
      {QDate(2017, 5, 25), QDate(2017, 5, 26)},    // ascension et pont
      {QDate(2017, 6, 5), QDate(2017, 6, 5)},      // lundi de Pentecôte
  };
  return conges;
}

}  // namespace

bool EstJourEcole(const QDate& jour) {
  if (jour < kRentree || jour > kFinAnnee || jour.dayOfWeek() > 5) return false;
  for (const TConge& conge : Conges())
    if (jour >= conge.Premier && jour <= conge.Dernier) return false;
  return true;
}

const std::vector<QDate>& JoursEcole() {
  static const std::vector<QDate> jours = [] {
    std::vector<QDate> liste;
    for (QDate jour = kRentree; jour <= kFinAnnee; jour = jour.addDays(1))
      if (EstJourEcole(jour)) liste.push_back(jour);
    return liste;
  }();
  return jours;
}

QDate JourEcoleSuivant(QDate jour) {
  while (jour < kFinAnnee && !EstJourEcole(jour)) jour = jour.addDays(1);
  return jour < kFinAnnee ? jour : kFinAnnee;
}

bool EstJourRepas(const QDate& jour) {
  return jour >= QDate(2016, 9, 5) && jour <= QDate(2017, 6, 28) && EstJourEcole(jour);
}

bool EstJourEtude(const QDate& jour) {
  const int rang = jour.dayOfWeek();
  return (rang == 1 || rang == 2 || rang == 4) && jour >= QDate(2016, 9, 12) && jour <= QDate(2017, 6, 16) &&
         EstJourEcole(jour);
}
