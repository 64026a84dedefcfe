#pragma once
#include "core/distributor.h"
#include "core/index.h"

/// The class that a pupil attends in a school year.
struct TEleveClasse : TBaseObject {
  int EleveId = 0;
  QString Classe;
  QString SousClasse;
  QString CodeImplantation;
  int AnneeScolaire = 0;
};

/// The enrolments of a school year, or of all years.
class TElevesClasses : public TCollection<TEleveClasse> {
 public:
  /// `annee` 0 gives all years.
  TElevesClasses(TDataModule1& base, int annee);
  /// From the local copy, which knows neither site nor year; it cannot be saved.
  TElevesClasses(TDataSet& source, int annee);

  /// A new or changed enrolment; in the collection of a year it takes that year.
  TEleveClasse& AddEleveClasse(std::unique_ptr<TEleveClasse> inscription);
  TEleveClasse& AddEleveClasse(TEleveClasse& inscription);

  /// Of the pupil's first enrolment in the order of the database, which with all years loaded is not
  /// the latest; "" without one.
  QString ClasseDe(int eleveId) const;
  QString SousClasseDe(int eleveId) const;
  QString ImplantationDe(int eleveId) const;

  /// Whether the pupil has a stored enrolment for that year.
  bool EstInscrit(int eleveId, int annee) const;
  /// Enrols a pupil for a year, or changes the enrolment of that year, and saves.
  void Inscrire(int eleveId, const QString& classe, int annee, const QString& implantation,
                const QString& sousClasse);

  const int AnneeScolaire;  ///< 0 for all years

 protected:
  void DefineQuery() override;
  void LoadFromSource(TDataSet& source) override;
  void Indexer(TEleveClasse& inscription) override { parEleve_.Suivre(inscription, inscription.EleveId); }
  void Desindexer(TEleveClasse& inscription) override { parEleve_.Oublier(inscription); }

 private:
  TEleveClasse* Derniere(int eleveId, int annee) const;

  TIndex<int, TEleveClasse> parEleve_;
};
