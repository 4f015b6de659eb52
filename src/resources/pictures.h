#pragma once

// Resource IDs of the pictures. The resource compiler includes this file, too.
#define PICTURE_APPLICATION 1
// The seven commands of the viewer's image bar, in their order, and its colour button.
#define PICTURE_COMMAND_FIRST 10
#define PICTURE_COLOUR 17
// The eleven pictures beside the viewer's menu entries.
#define PICTURE_MENU_FIRST 20
// The main screen's picture of a letter to the author, and its decoration.
#define PICTURE_AUTHOR_MAIL 40
#define PICTURE_GAME_PAD 41
// The author dialog's spinning coin, and the three pictures that take turns as its icon.
#define PICTURE_COIN 42
#define PICTURE_QUILL_FIRST 43
// The background of the splash: the ID of each bitmap is this number plus the bitmap's dots per inch.
#define PICTURE_SPLASH 100
