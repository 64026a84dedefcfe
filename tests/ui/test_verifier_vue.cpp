#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "ui/verifier_vue.h"

TEST(VerifierVue, TrouveCeQuiManque) {
  QWidget vue;
  auto* ligne = new QHBoxLayout(&vue);
  const auto ajouter = [&](QWidget* champ, const char* nom) {
    champ->setObjectName(QLatin1String(nom));
    ligne->addWidget(champ);
    return champ;
  };
  ajouter(new QLineEdit, "sansNom");
  ajouter(new QPushButton(QStringLiteral("Un long texte")), "etroit")->setFixedWidth(20);
  ajouter(new QPushButton(QStringLiteral("Loin")), "loin")->setFocusPolicy(Qt::ClickFocus);
  auto* dehors = new QPushButton(QStringLiteral("Dehors"), &vue);
  dehors->setObjectName(QStringLiteral("dehors"));
  dehors->move(1100, 0);
  const QString fautes = FautesDeVue(vue).join(u'\n');
  for (const char* faute :
       {"sans nom : QLineEdit « sansNom »", "trop petit pour son texte : QPushButton « etroit »",
        "hors de portée de Tab : QPushButton « loin »", "coupé : QPushButton « dehors »"})
    EXPECT_TRUE(fautes.contains(QString::fromUtf8(faute))) << faute << "\n" << fautes.toStdString();
  EXPECT_EQ(fautes.count(u'\n'), 3);
}
