// A shared object without the function that makes a component.

extern "C" int Nothing() { return 0; }
