#include "core/texte_separe.h"

#include <QStringDecoder>
#include <algorithm>

#include "core/exceptions.h"
#include "core/fichiers.h"

using namespace Qt::StringLiterals;

namespace {

// What Windows-1252 holds between 0x80 and 0x9F, where Latin-1 has control characters.
constexpr char16_t kWindows1252[32] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                       0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

/// One cell from `debut`; moves `debut` behind its separator, or behind the end of the line.
QString Cellule(const QString& ligne, qsizetype& debut) {
  QString debutCellule;
  qsizetype i = debut;
  if (i < ligne.size() && ligne[i] == u'"') {
    // Quoted: a separator inside does not count, "" is a quote. A quote that is not closed on its
    // line is an ordinary character, so that it cannot swallow the rest of the file.
    QString texte;
    qsizetype j = i + 1;
    bool ferme = false;
    while (j < ligne.size() && !ferme) {
      if (ligne[j] != u'"') {
        texte += ligne[j++];
      } else if (j + 1 < ligne.size() && ligne[j + 1] == u'"') {
        texte += u'"';
        j += 2;
      } else {
        ferme = true;
        ++j;
      }
    }
    if (ferme) {
      debutCellule = texte;
      i = j;
    }
  }
  qsizetype fin = ligne.indexOf(u';', i);
  if (fin < 0) fin = ligne.size();
  debutCellule += QStringView(ligne).mid(i, fin - i);
  debut = fin + 1;
  return debutCellule;
}

QStringList Couper(const QString& ligne) {
  QStringList cellules;
  qsizetype debut = 0;
  do cellules += Cellule(ligne, debut);
  while (debut <= ligne.size());
  return cellules;
}

/// By the mark at its beginning, which such files always have.
bool EstUtf16(const QByteArray& octets) {
  return octets.startsWith("\xFF\xFE") || octets.startsWith("\xFE\xFF");
}

}  // namespace

QString TexteDepuisOctets(const QByteArray& octets) {
  if (EstUtf16(octets)) return QStringDecoder(QStringDecoder::Utf16)(octets);
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString texte = utf8(octets);
  if (!utf8.hasError()) return texte;
  QString ansi = QString::fromLatin1(octets);
  for (QChar& c : ansi)
    if (c.unicode() >= 0x80 && c.unicode() < 0xA0) c = QChar(kWindows1252[c.unicode() - 0x80]);
  return ansi;
}

TTexteSepare TTexteSepare::Lire(const QString& chemin) { return Depuis(LireFichier(chemin), chemin); }

QStringList LignesDeTexte(const QByteArray& octets, const QString& nom) {
  if (octets.contains('\0') && !EstUtf16(octets))
    throw Exception(nom.isEmpty() ? u"Ce fichier n'est pas un fichier de texte."_s
                                  : u"Le fichier « %1 » n'est pas un fichier de texte."_s.arg(nom));
  QString texte = TexteDepuisOctets(octets);
  texte.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
  QStringList lignes = texte.split(u'\n');
  if (lignes.last().isEmpty()) lignes.removeLast();
  return lignes;
}

TTexteSepare TTexteSepare::Depuis(const QByteArray& octets, const QString& nom) {
  TTexteSepare resultat;
  for (const QString& ligne : LignesDeTexte(octets, nom)) resultat.Lignes.push_back(Couper(ligne));
  const auto vide = [](const QStringList& l) { return l.size() == 1 && l[0].trimmed().isEmpty(); };
  while (!resultat.Lignes.empty() && vide(resultat.Lignes.back())) resultat.Lignes.pop_back();
  return resultat;
}

QString TTexteSepare::Cellule(int ligne, int colonne) const {
  return Lignes[static_cast<std::size_t>(ligne)].value(colonne);
}

QString ChampSepare(const QString& champ) {
  const bool simple =
      std::ranges::none_of(champ, [](QChar c) { return c == u';' || c == u'"' || c == u'\n' || c == u'\r'; });
  return simple ? champ : u'"' % QString(champ).replace(u'"', u"\"\""_s) % u'"';
}
