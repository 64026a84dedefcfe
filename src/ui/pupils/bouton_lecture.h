#pragma once
#include <QCheckBox>
#include <QRadioButton>

/// A box or a radio button that shows a value: a click is announced and switches nothing.
template <class Bouton>
class BoutonLecture : public Bouton {
 public:
  explicit BoutonLecture(const QString& texte) : Bouton(texte) { this->setProperty("lectureSeule", true); }

 protected:
  void nextCheckState() override {}
};

using CaseLecture = BoutonLecture<QCheckBox>;
using ChoixLecture = BoutonLecture<QRadioButton>;
