#pragma once
// Placeholder: the headless play front end.
