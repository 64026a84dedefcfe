#pragma once
#include <QHash>
#include <QScrollArea>

#include "forms/signal.h"

class LiaisonChamps;
class QBoxLayout;
class QPushButton;
class QTabWidget;
class TFrmParametres;

/// The settings, page by page.
class VueParametres : public QScrollArea {
  Q_OBJECT
 public:
  VueParametres(TFrmParametres& form, QWidget* parent);

 protected:
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  QBoxLayout* CreerPage(const QString& titre);
  void CreerPages();
  void CreerGroupes();
  void CreerEntretien(QBoxLayout& page);
  /// Below the fields of that page, buttons from the left.
  QPushButton* AjouterBouton(QBoxLayout& rang, const QString& texte, void (TFrmParametres::*faire)());
  void AjouterInsertion(QBoxLayout& rang, const QString& texte, const QString& champ, const QString& quoi);
  void Inserer(const QString& champ, const QString& quoi);

  TFrmParametres& form_;
  QTabWidget* pages_;
  std::vector<LiaisonChamps*> liaisons_;
  QPushButton* etape1_ = nullptr;
  QPushButton* professeur_ = nullptr;
  TLiens liens_;
};
