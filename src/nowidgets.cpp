// Compiled into core and plot: the build stops when Qt Widgets reaches them, directly or
// through another library.
#ifdef QT_WIDGETS_LIB
#error "core and plot must not link Qt Widgets"
#endif
