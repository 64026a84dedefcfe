// The file form of a local data set.
#include <QCryptographicHash>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>

#include "core/data_set.h"
#include "core/exceptions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView kMarque = "CALPENNE copie locale\n";
constexpr quint16 kVersion = 1;
constexpr qsizetype kTailleEmpreinte = 32;
constexpr quint32 kColonnesMaximum = 100;

/// How a value is announced.
enum TGenre : quint8 { kAucune = 0, kEntier = 1, kTexte = 2, kOctets = 3 };

QByteArray Empreinte(QByteArrayView octets) {
  return QCryptographicHash::hash(QByteArray::fromRawData(octets.data(), octets.size()),
                                  QCryptographicHash::Sha256);
}

void Ecrire(QDataStream& flux, const QVariant& valeur) {
  switch (valeur.typeId()) {
    case QMetaType::Int:
      flux << quint8(kEntier) << qint32(valeur.toInt());
      break;
    case QMetaType::QString:
      flux << quint8(kTexte) << valeur.toString().toUtf8();
      break;
    case QMetaType::QByteArray:
      flux << quint8(kOctets) << valeur.toByteArray();
      break;
    default:
      flux << quint8(kAucune);
  }
}

QVariant Lire(QDataStream& flux) {
  quint8 genre = 0;
  qint32 entier = 0;
  QByteArray octets;
  flux >> genre;
  switch (genre) {
    case kAucune:
      return {};
    case kEntier:
      flux >> entier;
      return int(entier);
    case kTexte:
      flux >> octets;
      return QString::fromUtf8(octets);
    case kOctets:
      flux >> octets;
      return octets;
    default:
      flux.setStatus(QDataStream::ReadCorruptData);
      return {};
  }
}

[[noreturn]] void Refuser(const QString& nom, QStringView pourquoi) {
  throw Exception(
      u"La copie locale « %1 » ne peut pas être lue : %2. Refaites un transfert."_s.arg(nom, pourquoi));
}

QStringList LireColonnes(QDataStream& flux) {
  quint32 nombre = 0;
  flux >> nombre;
  QStringList colonnes;
  if (nombre > kColonnesMaximum) flux.setStatus(QDataStream::ReadCorruptData);
  for (quint32 i = 0; i < nombre && flux.status() == QDataStream::Ok; ++i) colonnes += Lire(flux).toString();
  return colonnes;
}

}  // namespace

QByteArray TDataSet::EnOctets() const {
  QByteArray octets = kMarque.toByteArray();
  {
    QDataStream flux(&octets, QIODevice::WriteOnly | QIODevice::Append);
    flux.setVersion(QDataStream::Qt_6_0);
    flux << kVersion << qint32(Annee) << qint32(AnneeTravail) << quint32(noms_.size());
    for (const QString& nom : noms_) Ecrire(flux, nom);
    flux << quint32(lignes_.size());
    for (const auto& ligne : lignes_)
      for (const QVariant& valeur : ligne) Ecrire(flux, valeur);
  }
  return octets + Empreinte(octets);
}

TDataSet TDataSet::DepuisOctets(const QByteArray& octets, const QString& nom) {
  const qsizetype taille = octets.size() - kTailleEmpreinte;
  if (taille < kMarque.size() || !octets.startsWith(kMarque)) Refuser(nom, u"ce n'est pas une copie locale");
  if (Empreinte(QByteArrayView(octets).first(taille)) != octets.last(kTailleEmpreinte))
    Refuser(nom, u"elle est abîmée");
  const QByteArray contenu = octets.mid(kMarque.size(), taille - kMarque.size());
  QDataStream flux(contenu);
  flux.setVersion(QDataStream::Qt_6_0);
  quint16 version = 0;
  qint32 annee = 0, travail = 0;
  flux >> version >> annee >> travail;
  if (version != kVersion) Refuser(nom, u"elle vient d'une autre version du programme");
  const QStringList colonnes = LireColonnes(flux);
  TDataSet copie(colonnes);
  copie.Annee = annee;
  copie.AnneeTravail = travail;
  quint32 nombre = 0;
  flux >> nombre;
  // Each value takes a byte at least: what announces more rows than there are bytes has none.
  if (colonnes.isEmpty() ? nombre > 0 : nombre > static_cast<quint64>(contenu.size()))
    Refuser(nom, u"elle est abîmée");
  for (quint32 i = 0; i < nombre && flux.status() == QDataStream::Ok; ++i) {
    std::vector<QVariant> ligne;
    for (qsizetype c = 0; c < colonnes.size(); ++c) ligne.push_back(Lire(flux));
    copie.Ajouter(std::move(ligne));
  }
  if (flux.status() != QDataStream::Ok || !flux.atEnd()) Refuser(nom, u"elle est abîmée");
  return copie;
}

// Pictures of a whole school are larger than any other file that is read.
TDataSet TDataSet::LireDe(const QString& chemin) {
  const QString nom = QFileInfo(chemin).fileName();
  QFile fichier(chemin);
  if (!QFileInfo(chemin).isFile() || !fichier.open(QIODevice::ReadOnly))
    Refuser(nom, u"le fichier ne s'ouvre pas");
  const QByteArray octets = fichier.readAll();
  if (fichier.error() != QFileDevice::NoError) Refuser(nom, fichier.errorString());
  return DepuisOctets(octets, nom);
}
