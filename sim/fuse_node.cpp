int zovsimFuseStub;
