/* Delivery dates, InterBase and Firebird. The script tool changes the terminator around bodies. */
CREATE TABLE delivery (id INTEGER NOT NULL, due DATE, note VARCHAR(80) DEFAULT 'open; none');
COMMIT;

SET TERM ^ ;

CREATE PROCEDURE postpone (id INTEGER, days INTEGER)
RETURNS (due DATE)
AS
  DECLARE VARIABLE old_due DATE;
BEGIN
  SELECT due FROM delivery WHERE id = :id INTO :old_due;
  IF (old_due IS NULL) THEN EXIT;
  due = old_due + days;
  UPDATE delivery SET due = :due WHERE id = :id;
  SUSPEND;
END^

CREATE TRIGGER delivery_bi FOR delivery ACTIVE BEFORE INSERT POSITION 0
AS
BEGIN
  IF (NEW.due IS NULL) THEN NEW.due = CURRENT_DATE + 7;
END^

SET TERM ; ^

EXECUTE BLOCK AS
  DECLARE n INTEGER = 0;
BEGIN
  WHILE (n < 3) DO
  BEGIN
    INSERT INTO delivery (id) VALUES (:n);
    n = n + 1;
  END
END;

SELECT CASE WHEN due < CURRENT_DATE THEN 'late' ELSE 'in time' END FROM delivery;
