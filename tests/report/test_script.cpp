#include <map>

#include "report/script/script.h"

using namespace Qt::StringLiterals;

namespace {

/// A report of three values; what a script sets is noted as text.
class THote : public IHoteScript {
 public:
  QString Variable(const QString& nom) override {
    static const std::map<QString, QString> valeurs{
        {u"nom"_s, u"D'Hondt [x]"_s}, {u"solde"_s, u"-12,50"_s}, {u"ligne#"_s, u"10"_s}};
    const auto valeur = valeurs.find(nom.toLower());
    return valeur == valeurs.end() ? QString() : valeur->second;
  }
  bool Poser(const QString& objet, TPropriete, const TValeurScript& valeur) override {
    const bool* vrai = std::get_if<bool>(&valeur);
    const double* nombre = std::get_if<double>(&valeur);
    Pose = objet + u'=' +
           (vrai     ? *vrai ? u"oui"_s : u"non"_s
            : nombre ? QString::number(*nombre)
                     : std::get<QString>(valeur));
    return objet != u"refus";
  }
  QString Pose;
};

/// The value that a script gives to MyT, or what it says against it.
QString Executer(const QString& corps) {
  THote hote;
  try {
    const TScript script =
        TScript::Lire(u"var MyT, MyU: String; MyB: Boolean;\nprocedure P(Sender: TBand);\nbegin "_s + corps +
                      u"\nend;\nbegin\nend."_s);
    TExecution execution(script, hote);
    execution.Appeler(u"p"_s, u"bande"_s);
    return hote.Pose.isEmpty() ? execution.Variable(u"myt"_s).value_or(u"?"_s) : hote.Pose;
  } catch (const EScript& e) {
    return e.Message;
  }
}

}  // namespace

TEST(Script, CeQueFaitChaqueConstruction) {
  // After "!" what is said of the line 3.
  for (const auto& [corps, attendu] : std::initializer_list<std::pair<QString, QString>>{
           {u"MyT := 'Total : ' + <NOM> + ' l''an'#13#10'fin'"_s, u"Total : D'Hondt [x] l'an\r\nfin"_s},
           {u"if <Solde> < 0 then MyT := 'doit ' + -<Solde> + ' €' else MyT := 'rien'"_s, u"doit 12,5 €"_s},
           {u"if (<Nom> <> '') and not (<Rien> <> '') then MyT := 'a' else MyT := 'b';"_s, u"a"_s},
           {u"if (<Rien> <> '') or (<Nom> = 'x') then begin MyT := 'a'; end else MyT := 'b'"_s, u"b"_s},
           {u"if <Ligne#> mod 5 = 0 then MyT := 'cinq'"_s, u"cinq"_s},
           {u"if <Ligne#> mod 4 = 2 then if <Ligne#> = 11 then MyT := 'a' else MyT := 'proche'"_s,
            u"proche"_s},
           {u"if '9' > '10' then MyT := 'texte' else MyT := 'nombre'"_s, u"texte"_s},
           {u"if <Ligne#> > 9 then MyT := 'nombre' else MyT := 'texte'"_s, u"nombre"_s},
           {u"MyB := <Nom> = ''; { rien } (* ni *) // là\n Sender.Visible := MyB"_s, u"bande=non"_s},
           {u"Memo.Width := <Ligne#>"_s, u"Memo=10"_s},
           {u"Memo.Width := 3 + 4"_s, u"Memo=7"_s},
           {u"MyU := 'déjà'; MyT := MyU + MyU"_s, u"déjàdéjà"_s},
           {u";"_s, {}},
           // Nothing but these.
           {u"while true do MyT := ''"_s, u"!« while » n'existe pas dans les scripts des modèles."_s},
           {u"MyT := Memo.Text"_s, u"!« Memo » n'est pas une variable du script."_s},
           {u"MyT := Copy(<Nom>, 1, 2)"_s, u"!« Copy » n'est pas une variable du script."_s},
           {u"Memo.Width := 4 - 3"_s, u"!« ; » est attendu, et non « - »."_s},
           {u"MyT := 'a' else MyT := 'b'"_s, u"!« ; » est attendu, et non « else »."_s},
           {u"\nMyX := 'a'"_s, u"ligne 4 : « MyX » n'est pas une variable du script."_s},
           {u"MyT := 'a"_s, u"!un texte n'est pas fermé."_s},
           {u"MyB := 'a'"_s, u"!« MyB » ne peut pas recevoir cette sorte de valeur."_s},
           {u"if <Nom> then MyT := 'a'"_s, u"!une condition est attendue."_s},
           {u"if <Nom> > 3 then MyT := 'a'"_s, u"!un nombre est attendu."_s},
           {u"if 3 mod 0 = 1 then MyT := 'a'"_s, u"!« mod » par zéro."_s},
           {u"refus.Top := 1"_s, u"!« refus.Top » ne peut pas recevoir cette valeur."_s},
           {QString(200, u'('), u"!il faut une instruction, et non « ( »."_s},
           {u"MyT := "_s + QString(200, u'('), u"!le script est trop imbriqué."_s},
       })
    EXPECT_EQ(Executer(corps).replace(u"ligne 3 : "_s, u"!"_s).toStdString(), attendu.toStdString())
        << qPrintable(corps);
}

TEST(Script, UneVariableResteJusquAuProchainAppel) {
  THote hote;
  TScript script =
      TScript::Lire(u"var MyT: String; procedure A; begin if <Nom> <> '' then MyT := MyT + 'a'; end;"_s);
  script.Ajouter(u"procedure B; begin MyT := MyT + 'b'; end;"_s, 1);
  EXPECT_THROW(script.Ajouter(u"var MYT: Boolean;"_s, 1), EScript);
  EXPECT_THROW(script.Ajouter(u"var T: Boolean;"_s, 1), EScript);
  TExecution execution(script, hote);
  for (const QString& nom : {u"a"_s, u"B"_s, u"A"_s}) execution.Appeler(nom, {});
  EXPECT_EQ(execution.Variable(u"MyT"_s), u"aba"_s);
  EXPECT_EQ(TExecution(script, hote).Variable(u"MyT"_s), u""_s);  // each run begins anew
  EXPECT_EQ(execution.Variable(u"MyAutre"_s), std::nullopt);
}
