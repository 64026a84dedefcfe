#pragma once
#include <QSizeF>
#include <functional>

#include "report/layout/mise_en_page.h"
#include "screens/contexte_ecran.h"
#include "screens/documents/recherche_document.h"

/// An entry of the navigator.
struct TEntreeNavigateur {
  QString Texte;
  int Niveau = 0;
  int Page = 0;  ///< from 0
};

enum class TModeZoom { Facteur, Largeur, Page };

/// Paper and margin of a document, in millimetres.
struct TPapier {
  QSizeF Taille;
  double Marge = 10.0;
};

/// What a preview needs besides its report. All must outlive it.
struct TContexteApercu {
  IDialogues& Dialogues;
  const TReglagesPoste& Reglages;
  const THorloge& Horloge;
};

/// The preview of a report: its pages as they are laid out, and what can be done with them. Pages are
/// counted from 0.
class TFrmApercu : public TForm {
 public:
  /// The report must outlive it. Raises Exception when its template is missing or wrong.
  TFrmApercu(const TContexteApercu& contexte, const TRapport& rapport);

  // Pages, which arrive one by one. A total of pages on paper is empty until all are there.
  const TDocumentPrepare& Document() const;
  /// Lays out pages for about that long; false when there was nothing left to do.
  bool Continuer(int millisecondes = 25);
  bool Complet() const { return miseEnPage_ == nullptr; }
  /// Lays out all that is missing.
  void Terminer();
  /// Those that will change no more, but for a total of pages.
  int PagesPretes() const;
  /// "12 pages prêtes…", then "43 pages prêtes"
  QString TextePretes() const;
  /// Counts the documents shown: pages are drawn again when it changes.
  int Version() const { return version_; }

  // Which page is in hand.
  int PageCourante() const { return page_; }
  /// Shows the page, or the nearest there is.
  void AllerPage(int page);
  /// The user has scrolled to it.
  void PageVue(int page);
  const std::vector<TEntreeNavigateur>& Navigateur() const { return navigateur_; }
  /// Index of the entry to which the page in hand belongs; -1 for none.
  int EntreeCourante() const;
  void ChoisirEntree(int entree);
  /// "43 documents", of invoices "43 factures"; of a document without bookmarks, its pages.
  QString TitreNavigateur() const;

  // Zoom: 1 is the paper's own size.
  TModeZoom ModeZoom() const { return modeZoom_; }
  void Zoomer(TModeZoom mode, double facteur = 1.0);
  /// "85 %", "Largeur" or "Page entière"; anything else changes nothing and gives false.
  bool ZoomerTexte(const QString& texte);
  void ZoomPlus() { ZoomVoisin(1); }
  void ZoomMoins() { ZoomVoisin(-1); }
  static QStringList ChoixZoom();
  QString TexteZoom() const;
  /// The place for pages, in px; fitting zooms follow it.
  void ChangerVue(const QSizeF& vue);
  double Echelle() const;

  // Search.
  void Chercher(const QString& texte);
  void ChercherSuivant(int sens = 1);
  const TRechercheDocument& Recherche() const { return recherche_; }
  /// "3 sur 12", "Introuvable", or nothing without a search.
  QString TexteRecherche() const;

  // Commands.
  void btnImprimerClick();
  void btnExporterClick();
  void btnEnregistrerClick();
  void btnOuvrirClick();
  void btnFermerClick();
  /// The report went to a printer or into a PDF; one that was opened from a file does not count.
  bool EstSorti() const { return sorti_; }
  /// False for a report that was opened from a file.
  bool PapierModifiable() const { return modele_ != nullptr; }
  TPapier Papier() const;
  /// Lays the report out again on that paper.
  void ChangerPapier(const TPapier& papier);
  /// "A4, portrait"
  QString TextePapier() const;

  // Faults of the layout.
  /// "3 avertissements"; empty without one.
  QString TexteDefauts() const;
  QStringList Defauts() const;

  /// The document is to be printed: who does it sets the name of the printer, and leaves it empty when the
  /// user gave up. It may raise Exception.
  TSignal<const TDocumentPrepare&, QString&> SurImprimer;
  IDialogues& Dialogues() const { return contexte_.Dialogues; }
  TNiveauEtat NiveauEtat = TNiveauEtat::Neutre;
  QString Etat;  ///< the last thing done
  /// A page is to be shown, and on it a place (null: its top).
  TSignal<int, const QRectF&> SurMontrer;

 private:
  void Commencer();
  void Montrer(TDocumentPrepare document);
  void Remettre();
  void Suivre();
  void ZoomVoisin(int sens);
  void MontrerTrouvaille(const TTrouvaille* trouvaille);
  void Sortir(const QString& texte);
  void Dire(TNiveauEtat niveau, const QString& texte);
  bool Essayer(const std::function<void()>& action);
  std::optional<QString> Demander(const QString& titre, const QString& extension, const QString& filtre);

  const TContexteApercu contexte_;
  const TRapport& rapport_;
  const TImpression impression_;
  const std::shared_ptr<const TModele> origine_;
  std::shared_ptr<const TModele> modele_;  ///< as the paper was set; null once a saved report is shown
  std::unique_ptr<TMiseEnPage> miseEnPage_;
  TDocumentPrepare document_;  ///< once complete
  std::vector<TEntreeNavigateur> navigateur_;
  int pagesSuivies_ = 0;  ///< whose bookmarks are in the navigator
  int signets_ = 0;       ///< of the lowest level
  int niveauSignets_ = 0;
  int page_ = 0;
  int version_ = 0;
  TModeZoom modeZoom_ = TModeZoom::Facteur;
  double facteur_ = 1.0;
  QSizeF vue_{794, 1123};
  TRechercheDocument recherche_;
  bool sorti_ = false;
  bool choixAttendu_ = false;  ///< the search has found nothing yet
};
