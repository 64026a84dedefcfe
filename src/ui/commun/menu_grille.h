#pragma once
class QMenu;
class VueGrille;

/// What every list offers in its context menu, below what its screen has added with `addAction`: copying,
/// filtering, sorting, exporting.
void RemplirMenu(QMenu& menu, VueGrille& vue);
