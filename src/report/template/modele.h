#pragma once
#include <QImage>
#include <QRgb>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

#include "report/layout/polices.h"
#include "report/script/script.h"

// A template as it stands in its file: never changed by a run. Lengths are px (1/96 inch); objects are
// measured from the upper left of their band, bands lie inside the margins.

enum class TSorteBande {
  EntetePage,
  PiedPage,
  Maitre,
  Detail,
  SousDetail,
  Entete,
  Pied,
  Colonnes,
  EnteteColonnes,
  Resume
};

enum class TSorteObjet { Texte, TexteRiche, Trait, Cadre, Image, CodeBarres, Qr, SousRapport };

enum class TAlignementTexte { Gauche, Droite, Centre, Bloc };

enum class TTypeCode { Code39, Codabar };

/// One object of a band. Which fields count depends on the kind.
struct TObjetModele {
  TSorteObjet Sorte = TSorteObjet::Texte;
  QString Nom;
  QString Fichier;  ///< that holds it, for faults
  int Ligne = 0;    ///< of the file
  float X = 0, Y = 0, Largeur = 0, Hauteur = 0;
  bool Visible = true;
  QString Texte;  ///< with [Name]; of a code, of a sub-report its page's name
  TStyle Style;
  bool Souligne = false;
  TAlignementTexte Alignement = TAlignementTexte::Gauche;
  QRgb Couleur = 0xFF000000;
  bool Etirable = false;  ///< grows with its text; a frame, with the texts that stand in it
  bool Balises = false;   ///< <b>, <i>, <u> inside values count; in the text itself they also do in rich text
  float Interligne = 0;   ///< px; 0 is the type's own
  float Epaisseur = 1;
  float Tiret = 0;
  QRgb Fond = 0, FondBas = 0;
  bool SousLaBande = false;  ///< stays at the foot of a stretched band (the rule under a row)
  TTypeCode TypeCode = TTypeCode::Code39;
  float Module = 0.96F;  ///< width of a narrow bar
  std::shared_ptr<const QImage> Image;
  QString AvantImpression;  ///< procedure of the script, "" for none
  /// Of objects in one group only the first whose text fits on its lines is kept; "" for none.
  QString GroupeAjuste;
};

/// One band, with its options.
struct TBandeModele {
  TSorteBande Sorte = TSorteBande::Detail;
  QString Nom;  ///< `MasterData1` and so on
  QString Fichier;
  int Ligne = 0;
  float Hauteur = 0;
  bool Visible = true;
  bool NouvellePage = false;      ///< each row starts a page
  bool ImprimerSiVide = false;    ///< print when the detail below is empty
  bool GarderEnsemble = false;    ///< the row and what hangs on it on one page when it fits
  bool GarderEnfant = false;      ///< stays with the band that follows
  bool Repeter = false;           ///< reprint on each new page while its section runs
  bool Etirable = false;          ///< height follows stretched objects
  bool DernierePage = false;      ///< a page footer: only on the last page of a master row
  bool PremierePageSans = false;  ///< an overlay or header: not on the first page of a master row
  int Colonnes = 1;               ///< of a multi-column page: how many, filled downwards
  float LargeurColonne = 0;
  int ColonnesMin = 0, ColonnesMax = 50;  ///< of a list: printed when it has so many
  QString Jeu;                            ///< for Entete, Pied: name of the data band that it belongs to
  QString AvantImpression;
  QString Signet;  ///< text of a bookmark, with [Name]; "" for none
  int NiveauSignet = 0;
  std::vector<TObjetModele> Objets;
};

/// A page of a template, with bands of its own.
struct TPageModele {
  QString Nom;
  float Largeur = 794, Hauteur = 1123;
  float Marge = 38;
  bool SousRapport = false;  ///< printed only where an object names it
  std::vector<TBandeModele> Bandes;
};

struct TModele {
  QString Nom;
  QString Fichier;
  std::vector<TPageModele> Pages;
  std::optional<TScript> Script;
};

/// Whether a script may set that property of an object of that kind, or of a band (none).
bool APropriete(std::optional<TSorteObjet> sorte, TPropriete propriete);

/// The template of that name: `NAME.xml` of the workstation's folder of templates ("" for none) goes
/// before the one compiled in. Raises Exception with file, line and reason, in French.
std::shared_ptr<const TModele> ChargerModele(const QString& nom, const QString& dossier = {});
/// The same from bytes; `fichier` is for messages. Includes are looked for like templates.
TModele LireModele(const QByteArray& xml, const QString& fichier, const QString& dossier = {});
