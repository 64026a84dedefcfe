#include "pupils/classe.h"

#include "pupils/eleves.h"

TCategorie CategorieDeClasse(const QString& nom) {
  if (nom.startsWith(u'M')) return TCategorie::Maternelle;
  if (nom.contains(u"PROF")) return TCategorie::Personnel;
  if (nom.startsWith(u'P')) return TCategorie::Primaire;
  return TCategorie::Autre;
}

TClasse::TClasse(TEleves& eleves, QString code, QString sousClasse, QString implantation)
    : Eleves(eleves),
      CodeClasse(std::move(code)),
      SousClasse(std::move(sousClasse)),
      CodeImplantation(std::move(implantation)) {}

QString TClasse::Libelle() const { return CodeClasse % u' ' % SousClasse; }

QString TClasse::LibelleImplantation() const { return Eleves.LibelleImplantation(CodeImplantation); }
