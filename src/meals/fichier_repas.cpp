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
  for (const QByteArray& ligne : lignes_) ++nombres_[ligne];
}

void TFichierRepas::Basculer(const QByteArray& ligne) {
  auto apres = lignes_;
  const bool present = Contient(ligne);
  if (present)
    apres.erase(std::ranges::find(apres, ligne));
  else
    apres.push_back(ligne);
  EcrireFichier(chemin_, TexteDesLignes(apres));
  lignes_ = std::move(apres);
  if ((nombres_[ligne] += present ? -1 : 1) == 0) nombres_.remove(ligne);
}
