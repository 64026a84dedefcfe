#pragma once
#include <QString>
#include <QStringList>
#include <vector>

/// Where a family comes from: its names, and what its children and parents are called.
struct TOrigine {
  QString Nationalite;
  QString Naissance;        ///< place of birth abroad; empty for Belgian families
  int Poids = 0;            ///< share of the families, in thousandths
  int PrenomsFrancais = 0;  ///< thousandths of the children who get a name of the general list
  QStringList Noms;
  QStringList Filles;
  QStringList Garcons;
  QStringList Meres;
  QStringList Peres;
};

/// A place where pupils of a site live.
struct TLocalite {
  QString Nom;
  int CodePostal = 0;
  int Poids = 0;
  QStringList Rues;
};

/// The first one is that of the Walloon families, whose names serve as the general lists.
const std::vector<TOrigine>& Origines();
/// Around the site of Brumeval (0) or of Vesperval (1), the village of the site first.
const std::vector<TLocalite>& Localites(std::size_t site);
/// Maternities of the region.
const QStringList& LieuxNaissance();
/// "BE71 0961 2345 6769": the account `numero` (seven digits) of the bank `banque` (three), with the
/// national and the international check numbers.
QString IbanBelge(int banque, int numero);
