#include "meals/fichier_repas.h"

#include <QFile>
#include <algorithm>

#include "core/exceptions.h"
#include "core/fichiers.h"
#include "core/formats.h"
#include "core/lecture_dates.h"

namespace {

constexpr int kChampDate = 2;

}  // namespace

QByteArray LigneRepas(const QString& matricule, TDateTime jour) {
  return (QString(matricule).remove(u'-') % u";2;" % FormatDateCompacte(jour) % u";120000000;1").toUtf8();
}

TDateTime JourDeLigne(const QByteArray& ligne) {
  try {
    return LireDateCompacte(QString::fromUtf8(ligne).section(u';', kChampDate, kChampDate));
  } catch (const EConvertError&) {
    return 0.0;
  }
}

std::vector<QByteArray> LignesDuTexte(const QByteArray& texte) {
  std::vector<QByteArray> lignes;
  qsizetype debut = 0;
  for (qsizetype i = 0; i < texte.size(); ++i) {
    if (texte[i] != '\n' && texte[i] != '\r') continue;
    lignes.push_back(texte.mid(debut, i - debut));
    if (texte[i] == '\r' && i + 1 < texte.size() && texte[i + 1] == '\n') ++i;
    debut = i + 1;
  }
  if (debut < texte.size()) lignes.push_back(texte.mid(debut));
  return lignes;
}

QByteArray TexteDesLignes(const std::vector<QByteArray>& lignes) {
  QByteArray texte;
  for (const QByteArray& ligne : lignes) texte += ligne + '\n';
  return texte;
}

TFichierRepas::TFichierRepas(QString chemin) : chemin_(std::move(chemin)) {
  if (QFile::exists(chemin_)) lignes_ = LignesDuTexte(LireFichier(chemin_));
}

bool TFichierRepas::Contient(const QByteArray& ligne) const {
  return std::ranges::find(lignes_, ligne) != lignes_.end();
}

void TFichierRepas::Basculer(const QByteArray& ligne) {
  auto apres = lignes_;
  const auto i = std::ranges::find(apres, ligne);
  if (i == apres.end())
    apres.push_back(ligne);
  else
    apres.erase(i);
  EcrireFichier(chemin_, TexteDesLignes(apres));
  lignes_ = std::move(apres);
}
