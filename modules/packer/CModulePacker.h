#pragma once

#include <QString>

// Assembles a module pack from a source folder:
//
//   module.def    the definition, packed as it is (required);
//   pictures.txt  pictures drawn at build time (see CPictureDrawer);
//   *.png ...     pictures kept as files, packed as they are;
//   setup.txt     the initial game (see CSetupFile), written as the game file
//                 the definition names in initial_setup_cmf.
//
// The initial game is built against the module itself: the pack is first
// written without it into a temporary home, found and activated there like
// any installed module, and the game's units take their tokens from it.
// Errors raise KorvaneError.
class CModulePacker
{
public:
    static void Pack(const QString& folder, const QString& outputPath);
};
