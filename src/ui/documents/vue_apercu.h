#pragma once
#include <QDialog>
#include <QTimer>

#include "forms/signal.h"
#include "ui/commun/etiquette.h"

class MarqueEtat;
class PagesApercu;
class QComboBox;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class TFrmApercu;

/// The preview window: commands above, the navigator on the left, the pages, their number below.
class VueApercu : public QDialog {
  Q_OBJECT
 public:
  VueApercu(TFrmApercu& form, QWidget* parent);

  PagesApercu* Pages() const { return pages_; }
  const TFrmApercu& Form() const { return form_; }

 protected:
  void resizeEvent(QResizeEvent* evenement) override;
  void keyPressEvent(QKeyEvent* evenement) override;
  bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
  QWidget* CreerBarre();
  void CreerCommandes(QHBoxLayout& ligne);
  void CreerZoom(QHBoxLayout& ligne);
  void CreerRecherche(QHBoxLayout& ligne);
  QWidget* CreerNavigateur();
  QWidget* CreerPied();
  QPushButton* Commande(QHBoxLayout& ligne, const QString& texte, const QString& icone, const QString& bulle,
                        bool principale = false);
  QPushButton* BoutonPage(QHBoxLayout& ligne, const QString& icone, const QString& nom,
                          int (*page)(int, int));
  void CreerRaccourcis();
  void Plier();
  void Suivre();
  void Rafraichir();
  void RafraichirNavigateur();
  void RafraichirPied();
  void ChoisirPapier();
  void MontrerDefauts();

  TFrmApercu& form_;
  QTimer minuterie_;  ///< lays out while nothing else is to be done
  QWidget* barre_ = nullptr;
  std::vector<std::pair<QPushButton*, QString>> pliables_;  ///< commands that can do without their text
  QPushButton* papier_ = nullptr;
  QPushButton* navigateur_ = nullptr;
  QComboBox* zoom_ = nullptr;
  QLineEdit* recherche_ = nullptr;
  Etiquette* trouve_ = nullptr;
  QWidget* cote_ = nullptr;
  Etiquette* titre_ = nullptr;
  QTreeWidget* arbre_ = nullptr;
  std::vector<QTreeWidgetItem*> entrees_;  ///< by entry of the navigator
  int version_ = -1;
  PagesApercu* pages_ = nullptr;
  QLineEdit* page_ = nullptr;
  Etiquette* sur_ = nullptr;
  MarqueEtat* etat_ = nullptr;
  QPushButton* defauts_ = nullptr;
  MarqueEtat* pretes_ = nullptr;
  Etiquette* format_ = nullptr;
  TLiens liens_;
};
