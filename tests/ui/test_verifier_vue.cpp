#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "ui/verifier_vue.h"

using namespace Qt::StringLiterals;

TEST(VerifierVue, TrouveCeQuiManque) {
  QWidget vue;
  auto* ligne = new QHBoxLayout(&vue);
  const auto ajouter = [&](QWidget* champ, const char* nom) {
    champ->setObjectName(QLatin1String(nom));
    ligne->addWidget(champ);
    return champ;
  };
  ajouter(new QLineEdit, "sansNom");
  ajouter(new QPushButton(u"Un long texte"_s), "etroit")->setFixedWidth(20);
  ajouter(new QPushButton(u"Loin"_s), "loin")->setFocusPolicy(Qt::ClickFocus);
  auto* dehors = new QPushButton(u"Dehors"_s, &vue);
  dehors->setObjectName(u"dehors"_s);
  dehors->move(1100, 0);
  const QString fautes = FautesDeVue(vue).join(u'\n');
  for (const char* faute :
       {"sans nom : QLineEdit « sansNom »", "trop petit pour son texte : QPushButton « etroit »",
        "hors de portée de Tab : QPushButton « loin »", "coupé : QPushButton « dehors »"})
    EXPECT_TRUE(fautes.contains(QString::fromUtf8(faute))) << faute << "\n" << fautes.toStdString();
  EXPECT_EQ(fautes.count(u'\n'), 3);
}
