#pragma once
#include <QByteArray>
#include <QString>
#include <memory>

class TReglagesPoste;

/// The link with the hand scanner in its cradle. Only the platform of its maker has one.
class ILienLecteur {
 public:
  virtual ~ILienLecteur() = default;

  /// An open file of the device; 0 is none.
  using TPoignee = quintptr;

  /// Opens the link; false when no device is there.
  virtual bool CeRapiInit() = 0;
  /// Ends the link, one that could not be opened too.
  virtual void CeRapiUnInit() = 0;
  /// Opens an existing file of the device for reading; 0 when it cannot be opened.
  virtual TPoignee CeCreateFile(const QString& chemin) = 0;
  /// Reads at most so many bytes; none at the end of the file. False when they cannot be read.
  virtual bool CeReadFile(TPoignee fichier, qint64 maximum, QByteArray& lu) = 0;
  virtual void CeCloseHandle(TPoignee fichier) = 0;
  /// False when the file of the device cannot be deleted.
  virtual bool CeDeleteFile(const QString& chemin) = 0;
};

/// Copies a file of the device to disk; the link is open. Raises Exception, and leaves a file that was
/// there before as it was.
void CopierDepuisLecteur(ILienLecteur& lien, const QString& distant, const QString& local);
/// Deletes a file of the device. Raises Exception.
void EffacerDuLecteur(ILienLecteur& lien, const QString& distant);

/// The link of this workstation: the folder that the setting `Lecteur` names, where the device is mounted;
/// else the library of its maker, on the system that has one. `reglages` must outlive it.
std::unique_ptr<ILienLecteur> LienDuPoste(const TReglagesPoste& reglages);
