#include <map>

#include "core/exceptions.h"
#include "payments/communication_structuree.h"
#include "payments/releve.h"
#include "support/affichage.h"
#include "support/valeurs.h"

namespace {

QString EnTexte(const TMouvement& m) {
  return QStringList{m.Donneur, DateVersQt(m.Date).toString(Qt::ISODate), FormatQuatreDecimales(m.Montant),
                     m.Communication, m.Compte}
      .join(u'|');
}

/// The movements, then the fault if there is one: "! message".
QStringList Lire(const QString& texte, TDispositionReleve disposition) {
  const TReleveLu releve = LireReleve(texte.toUtf8(), disposition);
  QStringList lus;
  for (const TMouvement& m : releve.Mouvements) lus += EnTexte(m);
  if (releve.Faute) lus += u"! "_s + releve.Faute->Message;
  return lus;
}

/// A row of a table, every cell told by its column.
QString Rangee(const std::map<int, QString>& cellules) {
  QStringList rangee;
  for (int i = 0; i < 15; ++i) {
    const auto la = cellules.find(i);
    rangee += la == cellules.end() ? u"x%1"_s.arg(i) : la->second;
  }
  return rangee.join(u';');
}

const QString kBlancs(10, u' ');

/// A line of layout C with that date, amount and detail.
QString Ligne(const QString& detail, const QString& date = u"05/10/2016"_s,
              const QString& montant = u"1.250,00"_s) {
  return u"a;;c;d;%1;f;%2;h;i;%3;z"_s.arg(date, montant, detail);
}

QString Detail(const QString& suite) {
  return u"Virement"_s + kBlancs + u"De: JEAN  DUPONT"_s + kBlancs + u"IBAN: BE68 5390"_s + kBlancs + suite;
}

}  // namespace

TEST(Releve, TablesAreReadByPosition) {
  const struct {
    TDispositionReleve disposition;
    int entete, date, communication;
  } dispositions[] = {{TDispositionReleve::A, 13, 1, 14}, {TDispositionReleve::B, 14, 3, 8}};
  for (const auto& d : dispositions) {
    const QString entete = u"05/10/2016;05/10/2016\n"_s.repeated(d.entete);
    const auto rangee = [&](const QString& date, const QString& montant) -> QString {
      return Rangee({{d.date, date}, {10, montant}, {5, u"\"Du;pont \"\"É\"\"\""_s}}) + u'\n';
    };
    const QString reste = u"|x%1|x4"_s.arg(d.communication);
    const auto lire = [&](const QString& suite) { return Lire(entete + suite, d.disposition); };
    EXPECT_EQ(lire({}), QStringList());
    EXPECT_EQ(lire(u"\n \n"_s), QStringList()) << "blank rows at the end are none";
    EXPECT_EQ(lire(rangee(u"5/10/2016"_s, u"-12,34567"_s) + rangee(u"06/10/16"_s, u"0"_s) + u"\n\n"),
              (QStringList{u"Du;pont \"É\"|2016-10-05|-12.3457"_s + reste,
                           u"Du;pont \"É\"|2016-10-06|0.0000"_s + reste}));
    for (const auto& [date, montant] : {std::pair(u"2016-10-05"_s, u"1"_s),
                                        {u"05/10/2016"_s, u"1.250,00"_s},
                                        {u"31/06/2017"_s, u"1"_s},
                                        {u"30/12/1899"_s, u"1"_s},
                                        {u"05/10/2016"_s, QString()}}) {
      const QStringList lus = lire(rangee(u"05/10/2016"_s, u"1"_s) + rangee(date, montant) + u"x\n");
      ASSERT_EQ(lus.size(), 2) << montant.toStdString();
      EXPECT_TRUE(lus[1].startsWith(
          u"! Ligne %1 : « %2 »"_s.arg(d.entete + 2).arg(date == u"05/10/2016" ? montant : date)))
          << lus[1].toStdString();
    }
    EXPECT_EQ(lire(u"\n"_s + rangee(u"05/10/2016"_s, u"1"_s)).size(), 1) << "a blank row inside is a fault";
    EXPECT_TRUE(LireReleve((entete + u"\n;"_s).toUtf8(), d.disposition).Faute.has_value());
  }
}

TEST(Releve, LabelledLines) {
  // Without the account of the fixture when it has another
  const std::pair<QString, QString> cas[] = {
      {Detail(u"Communication : ***123/4567/89012*** "_s), u"+++123/4567/89012+++|BE68 5390"_s},
      {Detail(u"Communication: perdu"_s), u"perd|BE68 5390"_s},
      {Detail(u"Info personnelle: b Communication: c Communication : d "_s), u"d|BE68 5390"_s},
      {Detail(u"Communication: c Info personnelle: d "_s), u"d|BE68 5390"_s},
      {Detail(u"Communication : "_s), u"|BE68 5390"_s},
      {Detail(u"rien"_s), u"|BE68 5390"_s},
      {u"De: JEAN  DUPONT"_s + kBlancs + u"IBAN: BE68"_s, u"|"_s},
      {u"De: JEAN  DUPONT"_s + kBlancs + u"Communication : sans compte "_s, u"sans compte|"_s},
      {u"Communication : x IBAN: y"_s + kBlancs + u"De: JEAN  DUPONT"_s + kBlancs + u"z"_s,
       u"x IBAN: y"_s + kBlancs + u"De: JEAN  DUPONT|"_s},
  };
  for (const auto& [detail, lu] : cas)
    EXPECT_EQ(Lire(u"en-tête\n"_s + Ligne(detail), TDispositionReleve::C).value(0),
              u"JEAN  DUPONT|2016-10-05|1250.0000|"_s + lu)
        << detail.toStdString();
  // Without a payer there is no movement.
  for (const QString& detail :
       QStringList{u"Vers: X"_s + kBlancs, u"De: X IBAN: Y"_s, u"De: "_s + kBlancs + u"IBAN: Y"_s})
    EXPECT_EQ(Lire(u"\n"_s + Ligne(detail, u"x"_s, u"y"_s), TDispositionReleve::C), QStringList());
}

TEST(Releve, DatesAndAmountsOfLabelledLines) {
  const QString detail = Detail({});
  // A movement, nothing, or "!"
  const std::tuple<QString, QString, QString> cas[] = {
      {u"05-10-16"_s, u"1,5"_s, u"2016-10-05|1.5000"_s},
      {u"05.10.2016"_s, u"1.250.000,00"_s, u"2016-10-05|1250000.0000"_s},
      {u"5/10/2016"_s, u"0"_s, u"2016-10-05|0.0000"_s},
      {u"5-10-2016"_s, u"1"_s, u"2016-10-05|1.0000"_s},
      {u"05/10/2016"_s, u"-1"_s, {}},
      {u"31/06/2017"_s, u"-1"_s, {}},
      {u"31/06/2017"_s, u"1"_s, u"!"_s},
      {u"1/1/16"_s, u"1"_s, u"!"_s},
      {{}, u"1"_s, u"!"_s},
      {u"05/10/2016"_s, {}, u"!"_s},
      {u"05/10/2016"_s, u"12,5 EUR"_s, u"!"_s},
  };
  for (const auto& [date, montant, attendu] : cas) {
    const QString lu = Lire(u"x\n"_s + Ligne(detail, date, montant), TDispositionReleve::C).value(0);
    EXPECT_EQ(lu.startsWith(u'!') ? u"!"_s : lu.section(u'|', 1, 2), attendu) << date.toStdString();
  }
  const QStringList court =
      Lire(u"x\n\n"_s + Ligne(detail) + u"\na;b;c;d;e;f;g;h;i;\n", TDispositionReleve::C);
  ASSERT_EQ(court.size(), 2);
  EXPECT_TRUE(court[1].startsWith(u"! Ligne 4 : elle n'a que 9 champs"_s));
}

TEST(Releve, TextsAreCutToWhatCanBeStored) {
  const QString rangee = Rangee({{1, u"05/10/2016"_s},
                                 {10, u"1"_s},
                                 {4, u"7"_s.repeated(60)},
                                 {5, u"é"_s.repeated(300)},
                                 {14, u"💶"_s.repeated(251)}});
  const TReleveLu releve = LireReleve((u"\n"_s.repeated(13) + rangee).toUtf8(), TDispositionReleve::A);
  ASSERT_EQ(releve.Mouvements.size(), 1U);
  EXPECT_EQ(releve.Mouvements[0].Donneur, u"é"_s.repeated(250));
  EXPECT_EQ(releve.Mouvements[0].Communication, u"💶"_s.repeated(250));
  EXPECT_EQ(releve.Mouvements[0].Compte.size(), 50);
  EXPECT_THROW(LireReleve(QByteArray("a\0b", 3), TDispositionReleve::C), Exception);
}

TEST(Releve, CommunicationsAsTheyAreStored) {
  const std::pair<QString, QString> cas[] = {
      {u"++++++001/2310/16185++++++"_s, u"+++001/2310/16185+++"_s},
      {u"+++001/2310/16186+++"_s, u"+++001/2310/16186+++"_s},
      {u"++++++001/2310/16186++++++"_s, u"+++001/2310/16186+++"_s},
      {u"++++++++++++abcdefghijklmnopq"_s, u"+++abcdefghijklmnopq"_s},  // twenty characters pass untested
      {u"++++++abcdefghijklmnop"_s, u"++++++abcdefghijklmnop"_s},       // nineteen do not, nor are changed
      {u"001231016185"_s, u"+++001/2310/16185+++"_s},
      {u"001231016186"_s, u"001231016186"_s},
      {u"001/2310/16185"_s, u"+++001/2310/16185+++"_s},
      {u"0/0/1/2310/16185"_s, u"+++001/2310/16185+++"_s},
      {u"+001231016185"_s, u"+++001/2310/16185+++"_s},
      {u"001231016185 "_s, u"001231016185 "_s},
      {u"000000000000"_s, u"+++000/0000/00000+++"_s},
      {u"++++++x"_s, u"++++++x"_s},
      {{}, {}},
  };
  for (const auto& [telle, stockee] : cas)
    EXPECT_EQ(CommunicationNormalisee(telle), stockee) << telle.toStdString();
}
