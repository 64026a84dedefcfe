# The icons are those of the Breeze theme of the build machine, compiled into the resources as
# ":/icones/SIZE/NAME.svg". Coloured drawings stay out: an icon takes its colour from the palette.
set(icones
  # commands
  system-users office-chart-bar view-barcode view-bank tag view-calendar-day food wallet-open
  document-import view-financial-list go-home chronometer configure view-calendar-special-occasion
  document-new document-edit document-save edit-delete document-print mail-send document-export
  document-open view-refresh network-connect network-disconnect application-exit camera-photo
  # search, lists
  edit-find go-down-search view-filter edit-copy list-add list-remove edit-clear edit-undo go-down view-calendar view-calendar-month
  # states
  dialog-ok-apply data-warning data-error data-information
  # preview
  document-properties view-list-tree view-sidetree zoom-in zoom-out zoom-fit-best
  go-first go-previous go-next go-last window-close)

find_path(BREEZE_ICONES index.theme PATH_SUFFIXES icons/breeze PATHS /usr/share /usr/local/share REQUIRED
          DOC "Folder of the Breeze icon theme (Debian: breeze-icon-theme)")
set(fichiers)
foreach(icone ${icones})
  set(trouvee FALSE)
  foreach(taille 16 22 32)
    foreach(famille actions status devices)
      set(fichier ${BREEZE_ICONES}/${famille}/${taille}/${icone}.svg)
      if(NOT EXISTS ${fichier})
        continue()
      endif()
      file(REAL_PATH ${fichier} fichier)
      file(READ ${fichier} dessin)
      if(dessin MATCHES "currentColor")
        # A drawing may serve under two names, and a file has one alias only.
        set(copie ${CMAKE_CURRENT_BINARY_DIR}/icones/${taille}/${icone}.svg)
        configure_file(${fichier} ${copie} COPYONLY)
        list(APPEND fichiers ${copie})
        set(trouvee TRUE)
        break()
      endif()
    endforeach()
  endforeach()
  if(NOT trouvee)
    message(FATAL_ERROR "No icon ${icone} in ${BREEZE_ICONES}")
  endif()
endforeach()
qt_add_resources(ui icones PREFIX / BASE ${CMAKE_CURRENT_BINARY_DIR} FILES ${fichiers})
