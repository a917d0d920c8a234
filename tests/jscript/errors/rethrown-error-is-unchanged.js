try {
  nowhere;
} catch (e) {
  throw e;
}

// expect error: 5009 at 4:2
// expect text: 'nowhere' is undefined
