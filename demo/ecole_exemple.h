#pragma once
#include <QDate>
#include <QString>
#include <array>
#include <cstdint>
#include <vector>

#include "core/currency.h"
#include "core/mois.h"
#include "core/param.h"

// A whole school of the province of Namur in the year 2016-2017, invented from a seed. Everything is
// plain data: what the office would receive as files is written by fichiers.h, the rest is stored by the
// program that loads the sample.

/// M1, M2, M3, P1 to P6.
inline constexpr int kNiveaux = 9;
inline constexpr std::array<const char16_t*, kNiveaux> kNomsNiveaux{u"M1", u"M2", u"M3", u"P1", u"P2",
                                                                    u"P3", u"P4", u"P5", u"P6"};

struct TSiteExemple {
  QString Code;  ///< as in the register
  QString LibelleCourt, LibelleLong;
  QString Adresse, CodePostal, Localite, Telephone;
  QString Responsable, ResponsablePrenom;
};

struct TAdulteExemple {
  QString Nom;  ///< empty: there is no such adult
  QString Prenom;
  QString Adresse, Numero, Localite;
  int CodePostal = 0;
};

/// How a family pays what it is asked.
enum class TPayeur {
  Ponctuel,   ///< each invoice, within the fortnight
  Tardif,     ///< two invoices at a time
  Arrondi,    ///< a round amount every month
  Negligent,  ///< now and then, in part
  Caisse,     ///< in cash at the office
};

/// What a family does from Monday (0) to Friday (4), in thousandths of the days; minutes of the day.
struct THabitudesFamille {
  std::array<int, 5> Matin{};
  std::array<int, 5> Soir{};  ///< Wednesday: the afternoon
  int MinuteMatin = 0;
  int MinuteSoir = 0;
  int MinuteMercredi = 0;
};

struct TFamilleExemple {
  TAdulteExemple Responsable, Responsable2;
  bool ParentsSepares = false;
  QString Compte, Titulaire;  ///< the account that transfers come from
  TPayeur Payeur = TPayeur::Ponctuel;
  THabitudesFamille Habitudes;
};

enum class TMidi { Rentre, Tartines, TartinesEtSoupe, Repas };

struct TEleveExemple {
  int Famille = 0;
  int Rang = 1;  ///< 1 for the eldest of the family in the school
  QString Nom, Prenom, Matricule;
  bool Fille = false;
  QDate DateNaissance;
  QString LieuNaissance, Nationalite;
  int Site = 0;
  int Niveau = 0;  ///< index in kNomsNiveaux
  QString Classe, SousClasse;
  QDate Arrivee, Depart;  ///< first and last school day in this school
  bool Radie = false, FactureDetail = false, Domiciliation = false, ImpotResponsable2 = false;
  bool CompteConnu = false;         ///< the office has noted the family's account on the record
  bool Etude = false;               ///< follows the study, on these days:
  std::array<int, 5> JoursEtude{};  ///< thousandths
  std::array<TMidi, 5> Midi{};      ///< Wednesday: what is eaten before the afternoon
};

/// A member of the staff: eats at school on some days, and never stays in day-care.
struct TProfesseurExemple {
  QString Nom, Prenom, Matricule;
  int Site = 0;
  std::array<int, 5> Repas{};  ///< thousandths of the days
};

/// Numbers as they are stored; hours "hh:mm".
struct TTarifExemple {
  int Famille = 0, Jour = 0;
  QString Debut, Fin;
  int Forfait = 0, Scan = 0;
  Currency Cout, Cout2eEnfant;
};

struct TActiviteExemple {
  QString Libelle, Debut, Fin;
  QDate Premier, Dernier;
  int Jour = 0;  ///< Monday 0 to Friday 4
};

struct TInscriptionExemple {
  int Eleve = 0, Activite = 0;
};

struct TFraisExemple {
  QString Libelle;
  Currency Cout;
  int Mois = 0;
  bool NonObligatoire = false, Previsionnel = false, Service = false;
};

/// A pupil owes a fee, and has perhaps brought the money in an envelope.
struct TLigneFraisExemple {
  int Eleve = 0, Frais = 0;
  bool Paye = false;
};

/// A payment noted by the office, with no fee and no bank movement behind it.
struct TPaiementExemple {
  int Eleve = 0;
  QString Libelle;
  Currency Montant;
  int Mois = 0;
  int TypeFamille = 0;  ///< 0 general, 1 fees, 2 services
  int Groupe = -1;      ///< index of the payment group, -1 for none
};

struct TMoisExemple {
  int Eleve = 0, Mois = 0;
};

/// Kind 1 home at noon, 2 study, 3 flat rates.
struct TMarqueExemple {
  int Eleve = 0, Genre = 0, Mois = 0;
};

struct TParametreExemple {
  TParam Param{};
  QString Valeur;
};

struct TEcoleExemple {
  std::uint64_t Graine = 0;
  int Annee = 2016;                 ///< its school year
  QDate DateRegistre{2016, 10, 3};  ///< of the register's export
  std::vector<TSiteExemple> Sites;
  std::vector<TFamilleExemple> Familles;
  std::vector<TEleveExemple> Eleves;  ///< by site, level, sub-class and name
  std::vector<TProfesseurExemple> Professeurs;
  std::vector<TParametreExemple> Parametres;
  std::vector<TTarifExemple> Tarifs;
  std::vector<TActiviteExemple> Activites;
  std::vector<TInscriptionExemple> Inscriptions;
  std::vector<TFraisExemple> Frais;
  std::vector<TLigneFraisExemple> LignesFrais;
  std::vector<QString> Groupes;
  std::vector<TPaiementExemple> Paiements;
  std::vector<TMoisExemple> MoisPayes;  ///< services of the month settled at the office
  std::vector<TMarqueExemple> Marques;
};

/// The same seed always gives the same school. `petite`: a tenth of the pupils.
TEcoleExemple CreerEcoleExemple(std::uint64_t graine, bool petite = false);
