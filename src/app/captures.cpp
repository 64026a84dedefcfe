// Pictures of the screens on a sample school, for the documentation and for whoever works on them.
#include <QAbstractButton>
#include <QAction>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFont>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <deque>

#include "core/data_module.h"
#include "core/exceptions.h"
#include "core/parametres.h"
#include "screens/attendance/frm_presences.h"
#include "screens/commun/frm_liste.h"
#include "screens/meals/frm_comptabilite.h"
#include "screens/meals/frm_compte_eleve.h"
#include "screens/meals/frm_presence_repas.h"
#include "screens/meals/frm_reservation.h"
#include "screens/meals/frm_ticket.h"
#include "screens/payments/frm_virement.h"
#include "screens/pupils/frm_import.h"
#include "screens/pupils/frm_signaletique.h"
#include "ui/commun/dialogue_base.h"
#include "ui/commun/theme.h"
#include "ui/commun/vue_grille.h"
#include "ui/documents/vue_apercu.h"
#include "ui/documents/vue_manques.h"
#include "ui/principal/application.h"
#include "ui/principal/programme.h"

using namespace Qt::StringLiterals;

namespace {

/// The day of the pictures, so that two runs give the same.
class THorlogeFixe : public THorloge {
 public:
  TDateTime Maintenant() const override { return EncodeDate(2016, 11, 22) + EncodeTime(9, 30, 0); }
};

/// What the pictures are taken of.
struct TSujet {
  QString Registre;   ///< register file, first layout
  QString Presences;  ///< scanner file
  QString Releve;     ///< bank file, layout of the sample school
  QString Dossier;    ///< where the pictures go
};

void Attendre(int ms) {
  QEventLoop boucle;
  QTimer::singleShot(ms, &boucle, &QEventLoop::quit);
  boucle.exec();
}

QAbstractButton* Bouton(const QWidget& fenetre, const QString& texte) {
  for (QAbstractButton* bouton : fenetre.findChildren<QAbstractButton*>())
    if (QString(bouton->text()).remove(u'&') == texte) return bouton;
  throw Exception(u"« " % texte % u" » manque.");
}

/// Goes through the screens and takes a picture of each.
class Photographe : public QObject {
 public:
  Photographe(Programme& programme, TSujet sujet) : programme_(programme), sujet_(std::move(sujet)) {
    minuterie_.setSingleShot(true);
    connect(&minuterie_, &QTimer::timeout, this, &Photographe::Repondre);
  }

  void Tout(const QString& suffixe) {
    using enum TGestionnaire;
    suffixe_ = suffixe;
    Signaletique();
    Dialogues();
    Liste(AdvGlowButton5Click, 3, u"edCout"_s, u"services-tarifs"_s);
    Liste(AdvGlowButton16Click, 2, u"edMontant"_s, u"frais"_s);
    Liste(btnActivitesClick, 1, u"edDateFin"_s, u"activites"_s);
    Pages(AdvGlowButton6Click, u"parametres"_s);
    Pages(AdvGlowButton3Click, u"mon-ecole"_s);
    Pages(AdvGlowButton7Click, u"statistiques"_s);
    programme_.Main.Executer(AdvGlowButton2Click);
    Assistant();
    Manques();
    Repas();
    Virements();
    Importation();
    Presences();
  }

  /// The tablet: years, a class, and the transfer that has been refused.
  void Tablette(const QString& suffixe) {
    suffixe_ = suffixe;
    programme_.Main.Executer(TGestionnaire::btnReservationTabletteClick);
    auto& form = Ecran<TFrmPresenceRepas>();
    form.btnAnneeClick(u"P3"_s);
    form.btnClasseClick(*form.ClassesDeLAnnee().front().Classe);
    Prendre(u"tablette"_s);
    form.edRechercheChange(u"la"_s);
    Prendre(u"tablette-recherche"_s);
  }

  /// A database that is not there yet is made, and the window shows what comes first.
  void Commencer() {
    Suivre({[](QWidget& fenetre) {
      Bouton(fenetre, u"Oui"_s)->click();
      return true;
    }});
    programme_.Fenetre.Demarrer();
    Attendre(3000);
  }
  void PremiereUtilisation(const QString& suffixe) {
    suffixe_ = suffixe;
    Attendre(50);
    Prendre(programme_.Fenetre, u"premiere-utilisation"_s);
  }

 private:
  /// What is done in a dialog once it is there; true when its turn is over.
  using TPas = std::function<bool(QWidget&)>;

  template <class T>
  T& Ecran() {
    auto* form = dynamic_cast<T*>(programme_.Main.Panneau.Courante());
    if (form == nullptr) throw Exception(u"Un écran ne s'ouvre pas."_s);
    return *form;
  }

  /// The main window, once it shows what was done.
  void Prendre(const QString& nom) {
    Attendre(50);
    Prendre(programme_.Fenetre, nom);
  }

  /// Tickets, orders, kitchen, accounts and sales.
  void Repas() {
    using enum TGestionnaire;
    TFrmMain& main = programme_.Main;
    main.edSearchChange(u"LAMB"_s);
    main.Executer(btnTicketClick);
    auto& tickets = Ecran<TFrmTicket>();
    tickets.ChoisirPage(0);
    Prendre(u"tickets"_s);
    tickets.ChoisirPage(1);
    Prendre(u"tickets-detail"_s);
    Suivre({[this](QWidget& fenetre) {
      Prendre(fenetre, u"tickets-vente"_s);
      fenetre.close();
      return true;
    }});
    tickets.btnEtape1Click();
    int classe = 0;  // several sites name theirs behind the class
    while (!ChoixDeClasses()[classe].startsWith(tickets.NomClasse())) ++classe;
    for (const auto& [ecran, nom] : {std::pair(btnReservationClick, u"reservation"_s),
                                     std::pair(btnReservation2Click, u"reservation-2"_s)}) {
      main.Executer(ecran);
      auto& form = Ecran<TFrmReservation>();
      form.cmbClasseChange(classe);
      auto* grille = programme_.Fenetre.VueCourante()->findChild<QTableWidget*>();
      grille->setFocus();
      grille->setCurrentCell(2, 1);
      Prendre(nom);
    }
    main.Executer(btnReservationClick);
    Ecran<TFrmReservation>().cmbClasseChange(classe);
    Bouton(programme_.Fenetre, u"Le mois"_s)->click();
    Prendre(u"reservation-mois"_s);
    main.Executer(btnCuisineClick);
    Prendre(u"cuisine"_s);
    main.Executer(btnClick);
    Prendre(u"cuisine-2"_s);
    main.Executer(btnCompteEleveClick);
    auto& comptes = Ecran<TFrmCompteEleve>();
    comptes.cmbClasseChange(classe);
    comptes.btnAjouteArgentClick();
    comptes.btnCoupureClick(3);
    comptes.edChange(5, u"2"_s);
    Prendre(u"comptes"_s);
    comptes.btnAnnulerClick();
    main.Executer(btnComptabiliteClick);
    Ecran<TFrmComptabilite>().dtChange(EncodeDate(2016, 10, 24), EncodeDate(2016, 10, 31));
    Prendre(u"compta"_s);
  }

  void Prendre(QWidget& fenetre, const QString& nom) {
    const QString chemin = sujet_.Dossier % u'/' % nom % suffixe_ % u".png";
    if (!fenetre.grab().save(chemin)) throw Exception(u"« " % chemin % u" » ne peut pas être écrit.");
    QTextStream(stdout) << chemin << '\n';
  }

  void Suivre(std::deque<TPas> pas) {
    pas_ = std::move(pas);
    minuterie_.start(50);
  }

  void Repondre() {
    minuterie_.start(100);
    QWidget* fenetre = QApplication::activeModalWidget();
    if (fenetre == nullptr || !fenetre->isVisible()) return;
    if (pas_.empty()) {  // a message is told, a second preview passed over
      if (const auto* message = qobject_cast<QMessageBox*>(fenetre))
        QTextStream(stderr) << message->text() << '\n';
      fenetre->close();
      return;
    }
    const TPas pas = pas_.front();
    pas_.pop_front();
    if (!pas(*fenetre)) pas_.push_front(pas);
  }

  void Signaletique() {
    TFrmMain& main = programme_.Main;
    main.edSearchChange({});
    main.edSearchChange(u"LAMB"_s);
    main.Executer(TGestionnaire::AdvGlowButton2Click);
    Attendre(50);
    Prendre(programme_.Fenetre, u"signaletique"_s);
  }

  /// Takes the picture of the dialog that comes, and closes it.
  TPas Photo(const QString& nom) {
    return [this, nom](QWidget& fenetre) {
      Prendre(fenetre, nom);
      fenetre.close();
      return true;
    };
  }
  /// A command by its words, so that the focus goes where it goes for a user.
  void Declencher(const QString& texte) {
    for (QAction* action : programme_.Fenetre.findChildren<QAction*>())
      if (action->text().startsWith(texte)) return action->trigger();
    throw Exception(u"« " % texte % u" » manque.");
  }

  /// What the record opens, and the main window.
  void Dialogues() {
    auto* fiche = dynamic_cast<TFrmSignaletique*>(programme_.Main.Panneau.Courante());
    if (fiche == nullptr) throw Exception(u"La fiche ne s'ouvre pas."_s);
    Suivre({Photo(u"ajout-releve"_s)});
    fiche->btnAjoutFaitClick();
    Suivre({Photo(u"calendrier"_s)});
    fiche->btnCalendrierClick();
    Suivre({Photo(u"paiement"_s)});
    fiche->SpeedButton1Click();
    Suivre({Photo(u"suppression"_s)});
    fiche->Frais.Grille.ChoisirLigne(0);
    fiche->SpeedButton2Click();
    Suivre({Photo(u"professeur"_s)});
    programme_.Main.Ajouterunprofesseur1Click();
    Suivre({Photo(u"touches"_s)});
    Declencher(u"&Touches"_s);
  }

  /// A list screen while a row is changed.
  void Liste(TGestionnaire ecran, int ligne, const QString& champ, const QString& nom) {
    programme_.Main.Executer(ecran);
    auto* form = dynamic_cast<TFrmListe*>(programme_.Main.Panneau.Courante());
    if (form == nullptr) throw Exception(u"« " % nom % u" » ne s'ouvre pas.");
    form->Grille.ChoisirLigne(ligne);
    form->Modifier();
    form->Champs().SurFoyer(form->Champs().Indice(champ));
    Attendre(50);
    Prendre(programme_.Fenetre, nom);
    form->Annuler();
  }

  /// A screen of several pages.
  void Pages(TGestionnaire ecran, const QString& nom) {
    programme_.Main.Executer(ecran);
    QWidget* vue = programme_.Fenetre.VueCourante();
    auto* pages = vue != nullptr ? vue->findChild<QTabWidget*>() : nullptr;
    if (pages == nullptr) throw Exception(u"« " % nom % u" » ne s'ouvre pas.");
    for (int i = 0; i < pages->count(); ++i) {
      pages->setCurrentIndex(i);
      Attendre(50);
      Prendre(programme_.Fenetre, nom % u'-' % QString::number(i + 1));
    }
  }

  void Assistant() {
    const auto suivant = [](QWidget& fenetre) { dynamic_cast<DialogueBase&>(fenetre).Principal()->click(); };
    TFrmPrintWizard& assistant = programme_.Assistant;
    Suivre({
        [=, this](QWidget& fenetre) {
          Bouton(fenetre, u"Facture"_s)->click();
          Prendre(fenetre, u"assistant-rapport"_s);
          suivant(fenetre);
          return true;
        },
        [=, this, &assistant](QWidget& fenetre) {
          Bouton(fenetre, u"Les classes suivantes:"_s)->click();
          for (int i = 0; i < assistant.LstClasse.NombreLignes(); ++i)
            assistant.LstClasse.Cocher(i, assistant.LstClasse.Texte(i, 0).startsWith(u"P3"));
          Attendre(50);
          Prendre(fenetre, u"assistant-eleves"_s);
          suivant(fenetre);
          return true;
        },
        [=, this](QWidget& fenetre) {
          Prendre(fenetre, u"assistant-periode"_s);
          suivant(fenetre);
          return true;
        },
        [=, this](QWidget& fenetre) {
          if (dynamic_cast<VueApercu*>(&fenetre) == nullptr) {
            Prendre(fenetre, u"date-paiement"_s);
            suivant(fenetre);
            return false;
          }
          fenetre.setWindowState(Qt::WindowNoState);  // it opens as large as the screen
          fenetre.resize(programme_.Fenetre.size());
          Attendre(2000);
          Prendre(fenetre, u"apercu-facture"_s);
          fenetre.close();
          return true;
        },
    });
    programme_.Main.OutilClick(TOutil::btnPrint);
  }

  /// Chooses the file and accepts.
  TPas Fichier(const QString& chemin) {
    return [chemin](QWidget& fenetre) {
      auto& dialogue = dynamic_cast<QFileDialog&>(fenetre);
      dialogue.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(chemin);
      QMetaObject::invokeMethod(&dialogue, "accept");
      return true;
    };
  }

  void Importation() {
    programme_.Main.Executer(TGestionnaire::AdvGlowButton8Click);
    auto* form = dynamic_cast<TFrmImport*>(programme_.Main.Panneau.Courante());
    if (form == nullptr) throw Exception(u"L'importation ne s'ouvre pas."_s);
    Suivre({Fichier(QFileInfo(sujet_.Registre).absoluteFilePath())});
    form->btnEtape1Click();
    bool pris = false;
    const TLien lien = programme_.Dialogues.SurProgression.Suivre([&](int fait, int total, const QString&) {
      if (pris || total == 0 || 2 * fait < total) return;
      pris = true;  // once the row in hand is told everywhere
      QTimer::singleShot(0, &programme_.Fenetre,
                         [this] { Prendre(programme_.Fenetre, u"importation-registre"_s); });
    });
    form->btnEtape2Click();
  }

  void Presences() {
    programme_.Main.Executer(TGestionnaire::AdvGlowButton1Click);
    if (dynamic_cast<TfrmPresences*>(programme_.Main.Panneau.Courante()) == nullptr)
      throw Exception(u"Les présences ne s'ouvrent pas."_s);
    Suivre({Fichier(QFileInfo(sujet_.Presences).absoluteFilePath())});
    Declencher(u"Importer un fichier de présence"_s);
    Attendre(50);
    Prendre(programme_.Fenetre, u"presences-scanner"_s);
    Suivre({Photo(u"correction"_s)});
    auto& form = dynamic_cast<TfrmPresences&>(*programme_.Main.Panneau.Courante());
    form.Anomalies.ChoisirLigne(form.Anomalies.NombreLignes() - 1);
    Declencher(u"Corriger le relevé"_s);
    Suivre({[this](QWidget& fenetre) {
      Prendre(fenetre, u"presences-abandon"_s);
      Bouton(fenetre, u"Oui"_s)->click();
      return true;
    }});
    programme_.Main.Executer(TGestionnaire::AdvGlowButton5Click);  // the record only hides this screen
    programme_.Main.Executer(TGestionnaire::AdvGlowButton2Click);
  }

  /// What the tax sheets of a level lack.
  void Manques() {
    const auto suivant = [](QWidget& fenetre) { dynamic_cast<DialogueBase&>(fenetre).Principal()->click(); };
    Suivre({[=](QWidget& fenetre) {
              Bouton(fenetre, u"Fiche fiscale 281.86"_s)->click();
              suivant(fenetre);
              return true;
            },
            [=](QWidget& fenetre) {
              suivant(fenetre);  // the classes of the document before
              return true;
            },
            [this](QWidget& fenetre) {
              if (dynamic_cast<VueManques*>(&fenetre) != nullptr) Prendre(fenetre, u"fiches-manques"_s);
              fenetre.close();  // else it says that the year is not over
              return dynamic_cast<VueManques*>(&fenetre) != nullptr;
            }});
    programme_.Main.OutilClick(TOutil::btnPrint);
  }

  /// The last unknown payment, between two pupils of the year.
  void Repartition(TFrmVirement& form) {
    const TGrille& liste = form.Historique;
    for (int ligne = 0; ligne < liste.NombreLignes(); ++ligne)
      if (liste.Texte(ligne, TFrmVirement::Eleve).isEmpty() &&
          liste.Ligne(ligne).Objet.En<TExtrait>()->Montant > Currency())
        form.Historique.ChoisirLigne(ligne);
    Suivre({[](QWidget& fenetre) {
              Bouton(fenetre, u"Répartir..."_s)->click();
              fenetre.close();
              return true;
            },
            [this](QWidget& fenetre) {
              VueGrille* eleves = fenetre.findChildren<VueGrille*>().last();
              for (int fois = 0; fois < 2; ++fois) {
                eleves->Grille().ChoisirLigne(0);
                Bouton(fenetre, u"Ajouter"_s)->click();
              }
              Prendre(fenetre, u"repartition"_s);
              fenetre.close();
              return true;
            }});
    form.grdHistoriqueDblClick();
  }

  /// The three pages, the attribution of what is unknown, and the accounts that the record learns from it.
  void Virements() {
    programme_.Main.Executer(TGestionnaire::btnVirementClick);
    auto* form = dynamic_cast<TFrmVirement*>(programme_.Main.Panneau.Courante());
    auto* pages = programme_.Fenetre.VueCourante()->findChild<QTabWidget*>();
    if (form == nullptr || pages == nullptr) throw Exception(u"Les virements ne s'ouvrent pas."_s);
    Suivre({Fichier(QFileInfo(sujet_.Releve).absoluteFilePath())});
    Bouton(programme_.Fenetre, u"Etape n°1 : Importer vos virements"_s)->click();
    Attendre(50);
    Prendre(programme_.Fenetre, u"virements-importation"_s);
    bool pris = false;
    const TLien lien = programme_.Dialogues.SurProgression.Suivre([&](int fait, int total, const QString&) {
      if (pris || total == 0 || 2 * fait < total) return;
      pris = true;
      Prendre(programme_.Fenetre, u"virements-progression"_s);
    });
    form->btnEtape2Click();
    Attendre(50);
    Prendre(programme_.Fenetre, u"virements-memorises"_s);
    pages->setCurrentIndex(1);
    Attendre(50);
    Prendre(programme_.Fenetre, u"virements-historique"_s);
    form->btnComptabiliseClick();  // the unknown ones
    form->Historique.ChoisirLigne(0);
    Suivre({[this](QWidget& fenetre) {
      auto* nom = fenetre.findChild<QLineEdit*>();
      for (int fois = 0; fois < 2; ++fois) {  // two payers for one pupil
        emit nom->textEdited(u"LAMBERT"_s);
        Attendre(50);
        if (fois == 0) Prendre(fenetre, u"attribution-virement"_s);
        dynamic_cast<DialogueBase&>(fenetre).Principal()->click();
      }
      Bouton(fenetre, u"Précédent"_s)->click();
      Attendre(50);
      Prendre(fenetre, u"attribution-comptabilise"_s);
      fenetre.close();
      return true;
    }});
    form->grdHistoriqueDblClick();
    const QString eleve = form->Historique.Texte(form->Historique.LigneCourante(), TFrmVirement::Eleve);
    Repartition(*form);
    pages->setCurrentIndex(2);
    Attendre(50);
    Prendre(programme_.Fenetre, u"virements-releve"_s);
    Comptes(eleve);
  }

  /// The record of the pupil to whom the movements went.
  void Comptes(const QString& eleve) {
    programme_.Main.edSearchChange(eleve);
    programme_.Main.Executer(TGestionnaire::AdvGlowButton2Click);
    Suivre({[this](QWidget& fenetre) {
      Prendre(fenetre, u"attribution-compte"_s);
      fenetre.close();
      return true;
    }});
    Bouton(programme_.Fenetre, u"…"_s)->click();
    Attendre(300);
  }

  Programme& programme_;
  TSujet sujet_;
  QString suffixe_;
  std::deque<TPas> pas_;
  QTimer minuterie_;
};

/// The school as it was on the day of the pictures: the year that follows is not open yet.
void OuvrirAnnee(const QString& base) {
  DialoguesQt dialogues;
  TReglagesPoste reglages;
  TDataModule1 module(dialogues, reglages);
  module.ServerName = base;
  module.Connecter();
  TParametres parametres(module);
  parametres.SetParametre(TParam::AnneeScolaire, u"2016"_s);
  parametres.Save();
}

/// A copy of the school that the pictures may change, known as this workstation's data.
void PreparerPoste(const QTemporaryDir& poste, const QString& base) {
  const QString copie = poste.filePath(u"ecole.fdb"_s);
  if (!QFile::copy(base, copie)) throw Exception(u"« " % base % u" » ne peut pas être lu.");
  for (const auto portee : {QSettings::UserScope, QSettings::SystemScope})
    QSettings::setPath(QSettings::NativeFormat, portee, poste.path());
  TReglagesPoste reglages;
  reglages.Ecrire(TRacine::Utilisateur, u"Serveur"_s, copie);
  OuvrirAnnee(copie);
}

/// In both palettes, at the smallest size and at a usual one; and on small screens. 960 x 540 are the points
/// of 1920 x 1080 at 200 %.
void ChaqueVue(Application& application, FenetrePrincipale& fenetre,
               const std::function<void(const QString&)>& prendre) {
  const struct {
    Theme::TMode Mode;
    QSize Taille;
    QString Suffixe;
  } vues[] = {
      {Theme::TMode::Clair, {1366, 768}, u"-1366x768"_s},
      {Theme::TMode::Sombre, {1366, 768}, u"-sombre-1366x768"_s},
      {Theme::TMode::Clair, {1024, 768}, u"-1024x768"_s},
      {Theme::TMode::Clair, {960, 540}, u"-960x540"_s},
      {Theme::TMode::Clair, {1920, 1080}, u"-1920x1080"_s},
      {Theme::TMode::Sombre, {1920, 1080}, u"-sombre-1920x1080"_s},
  };
  for (const auto& [mode, taille, suffixe] : vues) {
    Theme::Appliquer(application, mode);
    fenetre.resize(taille);
    prendre(suffixe);
  }
}

void Commencer(Application& application, const QTemporaryDir& poste, const TSujet& sujet) {
  TReglagesPoste().Ecrire(TRacine::Utilisateur, u"Serveur"_s, poste.filePath(u"nouvelle.fdb"_s));
  const THorlogeFixe horloge;
  Programme programme(horloge);
  Photographe photographe(programme, sujet);
  photographe.Commencer();
  ChaqueVue(application, programme.Fenetre,
            [&](const QString& suffixe) { photographe.PremiereUtilisation(suffixe); });
  programme.Fenetre.close();
}

/// A tablet that serves without a server, from a copy of its folder; at the size of a tablet.
void Tablette(Application& application, const QTemporaryDir& poste, const QString& dossier,
              const TSujet& sujet) {
  const QString copie = poste.filePath(u"tablette"_s);
  QDir().mkpath(copie);
  for (const QString& fichier : QDir(dossier).entryList(QDir::Files))
    QFile::copy(dossier % u'/' % fichier, copie % u'/' % fichier);
  TReglagesPoste reglages;
  reglages.Ecrire(TRacine::Utilisateur, u"DossierPresences"_s, copie);
  reglages.Ecrire(TRacine::Utilisateur, u"Offline"_s, u"1"_s);
  const THorlogeFixe horloge;
  Programme programme(horloge);
  programme.Fenetre.Demarrer();
  Attendre(50);
  Photographe photographe(programme, sujet);
  for (const auto& [mode, suffixe] : {std::pair(Theme::TMode::Clair, u"-1280x800"_s),
                                      std::pair(Theme::TMode::Sombre, u"-sombre-1280x800"_s)}) {
    Theme::Appliquer(application, mode);
    programme.Fenetre.resize(1280, 800);
    photographe.Tablette(suffixe);
  }
  programme.Fenetre.close();
  reglages.Ecrire(TRacine::Utilisateur, u"Offline"_s, u"0"_s);
}

void Ecrans(Application& application, const TSujet& sujet) {
  const THorlogeFixe horloge;
  Programme programme(horloge);
  application.Dialogues = &programme.Dialogues;
  programme.Fenetre.Demarrer();
  Attendre(50);
  Photographe photographe(programme, sujet);
  ChaqueVue(application, programme.Fenetre, [&](const QString& suffixe) { photographe.Tout(suffixe); });
  programme.Fenetre.close();
  application.Dialogues = nullptr;
}

void Executer(Application& application, const QString& base, const TSujet& sujet) {
  const QTemporaryDir poste;
  PreparerPoste(poste, base);
  if (!QDir().mkpath(sujet.Dossier)) throw Exception(u"« " % sujet.Dossier % u" » ne peut pas être créé.");
  Tablette(application, poste, QFileInfo(base).dir().filePath(u"tablette"_s), sujet);
  Globals = {};
  Ecrans(application, sujet);
  Globals = {};
  Commencer(application, poste, sujet);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  QApplication::setFont(QFont(QStringList{u"Noto Sans"_s, u"DejaVu Sans"_s}, 10));
  application.Preparer();
  QCommandLineParser options;
  options.process(application);
  const QStringList arguments = options.positionalArguments();
  if (arguments.size() != 5) {
    QTextStream(stderr) << "Usage : calpenne-captures BASE REGISTRE PRESENCES RELEVE DOSSIER\n";
    return 2;
  }
  try {
    Executer(application, arguments[0], {arguments[1], arguments[2], arguments[3], arguments[4]});
    return 0;
  } catch (const Exception& e) {
    QTextStream(stderr) << e.Message << '\n';
    return 1;
  }
}
