#pragma once
#include <QScrollArea>

class QTabWidget;
class TFrmMonEcole;

/// "Mon école": the denomination, and the sites.
class VueMonEcole : public QScrollArea {
  Q_OBJECT
 public:
  VueMonEcole(TFrmMonEcole& form, QWidget* parent);

 private:
  QWidget* CreerDenomination(TFrmMonEcole& form);
  QWidget* CreerImplantations(TFrmMonEcole& form);

  QTabWidget* pages_;
};
