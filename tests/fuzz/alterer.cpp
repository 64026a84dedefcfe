#include "fuzz/alterer.h"

#include <QList>

namespace {

/// From 0 to n - 1.
qsizetype Hasard(qsizetype n, std::mt19937& tirage) {
  return static_cast<qsizetype>(tirage() % static_cast<unsigned>(n));
}

/// Another text between two of these quotes, one that stands in `tout` or one of its own.
void ChangerValeur(QByteArray& ligne, char guillemet, const QByteArray& tout, std::mt19937& tirage) {
  static const QByteArray valeurs[] = {
      "",       "0",          "-1",  "1e9",         "nan", "oui",  "20000", "0.001",         "[",
      "[Total", "[NomEleve]", "#12", "MasterData1", "<b>", "\xC3", "Page1", "[[TOTALPAGES]]"};
  const auto entre = [&](const QByteArray& texte, qsizetype& debut, qsizetype& fin) {
    debut = texte.indexOf(guillemet, Hasard(texte.size() + 1, tirage)) + 1;
    fin = texte.indexOf(guillemet, debut);
    return debut > 0 && fin >= 0;
  };
  qsizetype debut = 0, fin = 0, autreDebut = 0, autreFin = 0;
  if (!entre(ligne, debut, fin)) return;
  QByteArray valeur = valeurs[Hasard(std::size(valeurs), tirage)];
  if (tirage() % 2 == 0 && entre(tout, autreDebut, autreFin))
    valeur = tout.mid(autreDebut, autreFin - autreDebut);
  ligne.replace(debut, fin - debut, valeur);
}

}  // namespace

QByteArray Alterer(QByteArray octets, std::mt19937& tirage) {
  static const QList<QByteArray> pieces =
      QByteArray(
          ";|\"|\"\"|\r\n|\n\n|\xff\xfe|\xEF\xBB\xBF|=\"|-1|00000000|99999999999999999999|\xC3|20161003|é|"
          "4;|31/06/2017")
          .split('|')
      << QByteArray(1, '\0') << QByteArray(3000, ';') << QByteArray(5000, '7');
  const auto hasard = [&](qsizetype n) { return Hasard(n, tirage); };
  for (auto fois = hasard(6) + 1; fois > 0; --fois) {
    const qsizetype ou = hasard(octets.size() + 1);
    switch (hasard(5)) {
      case 0:
        octets.insert(ou, pieces[hasard(pieces.size())]);
        break;
      case 1:
        octets.remove(ou, hasard(40));
        break;
      case 2:
        octets.truncate(ou);
        break;
      case 3:
        octets.insert(ou, octets.mid(hasard(octets.size() + 1), hasard(200)));
        break;
      default:
        if (ou < octets.size()) octets[ou] = static_cast<char>(tirage());
    }
  }
  return octets;
}

QByteArray AltererLignes(const QByteArray& octets, std::mt19937& tirage) {
  QList<QByteArray> lignes = octets.split('\n');
  for (auto fois = Hasard(6, tirage) + 1; fois > 0; --fois) {
    const qsizetype ou = Hasard(lignes.size(), tirage);
    switch (Hasard(8, tirage)) {
      case 0:
        if (lignes.size() > 1) lignes.removeAt(ou);
        break;
      case 1:
        lignes.insert(Hasard(lignes.size() + 1, tirage), lignes[ou]);
        break;
      case 2:
        lignes.move(ou, Hasard(lignes.size(), tirage));
        break;
      case 3:
        lignes[ou] = Alterer(lignes[ou], tirage);
        break;
      default:
        ChangerValeur(lignes[ou], tirage() % 4 == 0 ? '\'' : '"', octets, tirage);
    }
  }
  return lignes.join('\n');
}
