namespace { }
