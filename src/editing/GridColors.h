// The colours of grids, within the tool's palette. All are 0x00BBGGRR.
#pragma once

constexpr unsigned GridGround = 0xE3E1DE; // the ground of the pages
constexpr unsigned GridText = 0x33271F;
constexpr unsigned GridQuietText = 0x8F7C65; // where nothing is said
constexpr unsigned GridHeaderTop = 0xDDD3C8;
constexpr unsigned GridHeaderBottom = 0xC7BDB2;
constexpr unsigned GridHeaderText = 0x7D2800;
constexpr unsigned GridLine = 0xC7BDB2;      // between rows, and around framed cells
constexpr unsigned GridQuietLine = 0xD8D4D0; // between rows that belong together
constexpr unsigned GridFrame = 0x8F7C65;     // around the focus and around colours
constexpr unsigned GridCurrent = 0xEEE8E1;   // the ground of the row with the focus
constexpr unsigned GridLink = 0xFF0000;      // a text that can be clicked, under the pointer
