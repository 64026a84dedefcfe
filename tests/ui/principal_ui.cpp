// The main of the tests with widgets: no display, a font that is everywhere, the light palette.

#include "ui/principal/application.h"

#include "support/maison.h"

#include "ui/commun/theme.h"
#include "ui/verifier_vue.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  const TMaison maison;
  testing::InitGoogleTest(&argc, argv);
  Application application(argc, argv);
  QApplication::setFont(PoliceEssai(10));
  Theme::Appliquer(application, Theme::TMode::Clair);
  return RUN_ALL_TESTS();
}
