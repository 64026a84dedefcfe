#include "pupils/eleves_classes.h"

#include "core/data_set.h"

using namespace Qt::StringLiterals;

namespace {

using namespace Colonne;

constexpr TColonne<TEleveClasse> kColonnes[] = {
    Entier<&TEleveClasse::EleveId>("ELEVE_ID"),
    Entier<&TEleveClasse::AnneeScolaire>("ANNEE_SCOLAIRE"),
    Texte<&TEleveClasse::Classe>("CLASSE"),
    Texte<&TEleveClasse::SousClasse>("SOUS_CLASSE"),
    Texte<&TEleveClasse::CodeImplantation>("CODE_IMPLANTATION"),
};

}  // namespace

TElevesClasses::TElevesClasses(TDataModule1& base, int annee) : TCollection(base), AnneeScolaire(annee) {
  Charger();
}

TElevesClasses::TElevesClasses(TDataSet& source, int annee) : TCollection(source), AnneeScolaire(annee) {
  Charger();
}

void TElevesClasses::DefineQuery() {
  SelectSql = u"SELECT * FROM ELEVES_CLASSES"_s;
  if (AnneeScolaire != 0) SelectSql += u" WHERE ANNEE_SCOLAIRE=" % QString::number(AnneeScolaire);
  TableName = u"ELEVES_CLASSES"_s;
  KeyField = "ELEVE_CLASSE_ID";
  CounterName = u"ELEVES_CLASSES"_s;
  Colonnes = kColonnes;
}

void TElevesClasses::LoadFromSource(TDataSet& source) {
  auto inscription = std::make_unique<TEleveClasse>();
  inscription->EleveId = source.Valeur(u"ELEVE_ID"_s).toInt();
  inscription->Classe = source.Valeur(u"CLASSE"_s).toString();
  inscription->SousClasse = source.Valeur(u"SOUS_CLASSE"_s).toString();
  Placer(std::move(inscription));
}

TEleveClasse& TElevesClasses::AddEleveClasse(std::unique_ptr<TEleveClasse> inscription) {
  if (AnneeScolaire > 0) inscription->AnneeScolaire = AnneeScolaire;
  return Add(std::move(inscription));
}

TEleveClasse& TElevesClasses::AddEleveClasse(TEleveClasse& inscription) {
  if (AnneeScolaire > 0) inscription.AnneeScolaire = AnneeScolaire;
  return Add(inscription);
}

QString TElevesClasses::ClasseDe(int eleveId) const {
  const TEleveClasse* inscription = parEleve_.Premier(eleveId);
  return inscription != nullptr ? inscription->Classe : QString();
}

QString TElevesClasses::SousClasseDe(int eleveId) const {
  const TEleveClasse* inscription = parEleve_.Premier(eleveId);
  return inscription != nullptr ? inscription->SousClasse : QString();
}

QString TElevesClasses::ImplantationDe(int eleveId) const {
  const TEleveClasse* inscription = parEleve_.Premier(eleveId);
  return inscription != nullptr ? inscription->CodeImplantation : QString();
}

TEleveClasse* TElevesClasses::Derniere(int eleveId, int annee) const {
  TEleveClasse* derniere = nullptr;
  for (TEleveClasse* inscription : parEleve_.Tous(eleveId))
    if (inscription->AnneeScolaire == annee) derniere = inscription;
  return derniere;
}

bool TElevesClasses::EstInscrit(int eleveId, int annee) const {
  const TEleveClasse* inscription = Derniere(eleveId, annee);
  return inscription != nullptr && inscription->Id != -1;
}

void TElevesClasses::Inscrire(int eleveId, const QString& classe, int annee, const QString& implantation,
                              const QString& sousClasse) {
  TEleveClasse* existante = Derniere(eleveId, annee);
  auto nouvelle = existante == nullptr ? std::make_unique<TEleveClasse>() : nullptr;
  TEleveClasse& inscription = existante != nullptr ? *existante : *nouvelle;
  inscription.EleveId = eleveId;
  inscription.Classe = classe;
  inscription.AnneeScolaire = annee;
  inscription.CodeImplantation = implantation;
  inscription.SousClasse = sousClasse;
  if (nouvelle)
    AddEleveClasse(std::move(nouvelle));
  else
    AddEleveClasse(inscription);
  Save();
}
