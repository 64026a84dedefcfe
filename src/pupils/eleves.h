#pragma once
#include <unordered_map>

#include "core/distributor.h"
#include "core/index.h"
#include "core/regles_ecole.h"
#include "pupils/classe.h"
#include "pupils/eleve.h"
#include "pupils/eleves_classes.h"
#include "pupils/implantations.h"

class TActivitesEleves;
class TCommandes;
class TListeFrais;
class TPaiements;
class TPresences;
class TRepasPaiements;

/// What a pupil has of a bank movement.
struct TPartExtrait {
  int EleveId = 0;
  Currency Montant;
  bool FlgPart = false;  ///< it was shared out; else the whole movement was given to the pupil
};

/// The pupils of a school year under their classes, or all pupils of all years: the way to everything
/// that is known of one of them.
class TEleves : public TCollection<TEleve> {
 public:
  /// `annee` 0 gives all pupils; each is then in the class of its first enrolment.
  TEleves(TDataModule1& base, int annee);
  /// Off-line, from the local copies of enrolments and pupils: no sites, nothing is saved.
  TEleves(int annee, TDataSet& inscriptions, TDataSet& eleves);
  ~TEleves() override;

  TEleve& AddEleve(std::unique_ptr<TEleve> eleve) { return Add(std::move(eleve)); }
  TEleve& AddEleve(TEleve& eleve) { return Add(eleve); }
  /// Takes the pupil out of its class too.
  std::unique_ptr<TEleve> RemoveEleve(TEleve& eleve) { return Remove(eleve); }

  /// Every pupil, in the order of the collection.
  std::vector<TEleve*> Tous() const;
  /// First pupil with that key, or null.
  TEleve* TrouverParId(int id) const { return ParCle(id); }
  /// First pupil with exactly that register number, or null.
  TEleve* TrouverParMatricule(const QString& texte) const { return parMatricule_.Premier(texte); }
  /// First pupil with that register number without its dashes, as bar codes carry it, or null.
  TEleve* TrouverParCode(const QString& texte) const { return parCode_.Premier(texte); }

  /// Classes of the load, by label.
  const std::vector<std::unique_ptr<TClasse>>& Classes() const { return classes_; }
  /// The same in the order of their first pupils.
  const std::vector<TClasse*>& ClassesParNom() const { return classesParNom_; }
  /// `indice` in Classes().
  TClasse& GetClasse(int indice) const { return *classes_[static_cast<std::size_t>(indice)]; }
  /// Pupils of all classes.
  int NombreEleves() const;

  /// Enrols a pupil, in the present year of this collection when it has one, and saves.
  void AddClasseEleve(int eleveId, const QString& code, int annee, const QString& implantation,
                      const QString& sousClasse);

  /// Creates and saves the sites of the pupils that are not known yet.
  void SynchroniserImplantations();
  bool PlusieursImplantations() const;
  /// Short name of the site with that code, or the code itself.
  QString LibelleImplantation(const QString& code) const;

  /// Reads the fee lines of those pupils who still have to read theirs, in one statement: what goes
  /// through a whole school begins with it.
  void LireFrais(const std::vector<TEleve*>& eleves) const;

  /// What each pupil, of any year, has of a bank movement, a part for each payment; none when nobody has
  /// anything. As it was when first asked for; set ChargerExtraits to read again.
  const std::vector<TPartExtrait>& PartsExtrait(int extraitId);
  /// Key of the first of these pupils, 0 for none.
  int ExtraitVersEleve(int extraitId);
  /// What nobody has of a movement of that amount; 0 when it was given whole.
  Currency ResteExtrait(int extraitId, Currency montant);
  /// Account numbers and names of those who paid for a pupil in this year, in step.
  void ComptesDonneurs(int eleveId, QStringList& numeros, QStringList& noms) const;

  // Meals. They raise Exception off-line.
  /// The orders of the school, and the payments to the meal accounts around the year; read on first use.
  TCommandes& Commandes() const;
  TRepasPaiements& RepasPaiements() const;
  /// Orders and tickets of all pupils are read again when next asked for.
  void LibererCommandes();
  void LibererRepasPaiements();
  /// Reads the tickets of those pupils who still have to read theirs, in one statement.
  void LireTickets(const std::vector<TEleve*>& eleves) const;
  /// The same of their balances only, which costs as little after years of tickets.
  void LireSoldesTickets(const std::vector<TEleve*>& eleves) const;
  /// Gives a meal ticket of one pupil to another; both lists are read again when next asked for.
  void DeplacerTicket(int ancienEleveId, int nouvelEleveId, int ticketId);

  /// Calendar year of a month of the school year: months 7 to 12 lie in its first one.
  int AnneeDuMois(int mois) const { return mois >= 7 && mois <= 12 ? AnneeScolaire : AnneeScolaire + 1; }

  /// Raises Exception off-line.
  TDataModule1& BaseDeDonnees() const;

  const int AnneeScolaire;  ///< 0 for all years
  const bool HorsLigne;
  TElevesClasses ElevesClasses;
  const std::unique_ptr<TImplantations> Implantations;  ///< null off-line
  TDataSet* SourcePhotos = nullptr;                     ///< local photos off-line; may stay null
  bool ChargerExtraits = true;                          ///< the movements are to be read (again)
  const TReglesEcole* Regles = nullptr;                 ///< set by the load of the year; none without
  // What the accounts of the pupils read; set by the load of the year. Without one it counts as empty.
  const TListeFrais* ListeFrais = nullptr;
  const TPaiements* Paiements = nullptr;
  const TPresences* Presences = nullptr;
  const TActivitesEleves* ActivitesEleves = nullptr;

 protected:
  void DefineQuery() override;
  void LoadFromSource(TDataSet& source) override;
  void Completer(TEleve& eleve) override;
  void Indexer(TEleve& eleve) override;
  void Desindexer(TEleve& eleve) override;

 private:
  TClasse& TrouverClasse(const QString& code, const QString& sousClasse, const QString& implantation);
  void TrierClasses();

  std::vector<std::unique_ptr<TClasse>> classes_;
  std::vector<TClasse*> classesParNom_;
  TIndex<QString, TEleve> parMatricule_;
  TIndex<QString, TEleve> parCode_;
  std::unordered_map<int, std::vector<TPartExtrait>> partsParExtrait_;
  mutable std::unique_ptr<TCommandes> commandes_;
  mutable std::unique_ptr<TRepasPaiements> repasPaiements_;
};
