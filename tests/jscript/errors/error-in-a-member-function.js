function Thing() { }
Thing.prototype.run = function () {
    return nowhere;
};
new Thing().run();

// expect error: 5009 at 3:4
// expect text: 'nowhere' is undefined
