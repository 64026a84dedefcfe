#include "meals/fichier_repas.h"

#include <QFile>

#include "core/exceptions.h"
#include "core/fichiers.h"
#include "core/formats.h"
#include "core/lecture_dates.h"

namespace {

constexpr int kChampDate = 2;

/// Where the first such line begins; it is there.
qsizetype Place(const QByteArray& texte, const QByteArray& ligne) {
  const QByteArray cherche = ligne + '\n';
  qsizetype place = texte.indexOf(cherche);
  while (place > 0 && texte[place - 1] != '\n') place = texte.indexOf(cherche, place + 1);
  return place;
}

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
  if (!QFile::exists(chemin_)) return;
  const auto lignes = LignesDuTexte(LireFichier(chemin_));
  texte_ = TexteDesLignes(lignes);
  for (const QByteArray& ligne : lignes) Compter(ligne, 1);
}

TFichierRepas TFichierRepas::OuVide(const QString& chemin) {
  try {
    return TFichierRepas(chemin);
  } catch (const Exception&) {
    return TFichierRepas({});
  }
}

void TFichierRepas::Compter(const QByteArray& ligne, int fois) {
  nombre_ += fois;
  if ((nombres_[ligne] += fois) == 0) nombres_.remove(ligne);
  const TDateTime jour = JourDeLigne(ligne);
  if ((jours_[jour] += fois) == 0) jours_.erase(jour);
}

void TFichierRepas::Basculer(const QByteArray& ligne) {
  const bool present = Contient(ligne);
  QByteArray apres = texte_;
  if (present)
    apres.remove(Place(apres, ligne), ligne.size() + 1);
  else
    apres += ligne + '\n';
  EcrireFichier(chemin_, apres);
  texte_ = std::move(apres);
  Compter(ligne, present ? -1 : 1);
}
