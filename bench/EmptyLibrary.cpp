// A library that does nothing, to weigh the loading of one that does.
extern "C" int benchEmptyLibrary() {
    return 0;
}
